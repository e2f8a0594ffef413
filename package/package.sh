# Builds the Debian package in build/package/ and tests it.

make_package() {
    need_to_build "${for_showing[@]}" "${for_detaching[@]}" "${for_testing[@]}" \
        "${for_packaging[@]}"
    local place=build/package
    rm -rf "$place"
    mkdir -p "$place/source"
    git ls-files -z | xargs -0 cp -P --parents -t "$place/source"
    (cd "$place/source" && dpkg-buildpackage -us -uc -b)
    check_package "$place/source/debian/quillbarninstaller/usr/share"
    lintian --fail-on error,warning "$place"/*.changes
    local package=("$PWD/$place"/quillbarninstaller_*.deb)
    test_release quillbarninstaller test_package
    test_release "$PWD/$place/source/debian/quillbarninstaller/usr/bin/quillbarninstaller" \
        test_failures test_detach.Detach
    ls -l "$place"/*.deb
}

check_package() { # its share folder
    desktop-file-validate "$1"/applications/*.desktop
    appstreamcli validate --no-net "$1"/metainfo/*.xml
    local complaints
    complaints="$(man --warnings -E UTF-8 -l -Tutf8 -Z "$1"/man/man1/*.1.gz 2>&1 >/dev/null)"
    [ -z "$complaints" ] || { echo "$complaints" >&2 && return 1; }
}

# Tests a release build. Uses the variable `package` of make_package. With CI=1, a
# skipped test is a failure.
test_release() { # program test...
    "${as_root[@]}" env CI=1 tests/support/sandbox "$PWD" -- \
        env PATH=/usr/sbin:/usr/bin:/sbin:/bin PACKAGE="${package[0]}" INSTALLER="$1" \
        PYTHONPATH="$PWD/tests/program:$PWD/package" python3 -B -m unittest -v "${@:2}"
}
