<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Displays</name>
    <message>
        <source>plugin not found</source>
        <translation>The window could not be opened with the Qt platform plugin “%1”. Install the plugin, or unset QT_QPA_PLATFORM.</translation>
    </message>
    <message>
        <source>Wayland display not found</source>
        <translation>The window could not be opened on the Wayland display “%1”. Check that WAYLAND_DISPLAY names a running compositor.</translation>
    </message>
    <message>
        <source>Wayland plugin not found</source>
        <translation>The window could not be opened on the Wayland display “%1”. Install the package qt6-wayland.</translation>
    </message>
    <message>
        <source>X display not found</source>
        <translation>The window could not be opened on the display “%1”. Check that DISPLAY names a running X server.</translation>
    </message>
    <message>
        <source>no display</source>
        <translation>The window could not be opened without a display. Start the installer in a desktop session, or set DISPLAY or WAYLAND_DISPLAY.</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>out of memory</source>
        <translation>The operation could not continue. There is not enough memory.</translation>
    </message>
    <message>
        <source>internal error</source>
        <translation>The operation could not continue. Internal error: %1</translation>
    </message>
    <message>
        <source>incomplete, install again</source>
        <translation>The copy of quillbarn in “%1” is incomplete. Install quillbarn again.</translation>
    </message>
    <message>
        <source>incomplete, uninstall again</source>
        <translation>The copy of quillbarn in “%1” is incomplete. Uninstall quillbarn again.</translation>
    </message>
    <message>
        <source>maybe incomplete</source>
        <translation>The copy of quillbarn in “%1” may be incomplete. Start the installer again.</translation>
    </message>
    <message>
        <source>symlink loop</source>
        <translation>The symlink “%1” could not be followed. The target “%2/” is a folder that contains the symlink (symlink loop).</translation>
    </message>
    <message>
        <source>too many symlinks</source>
        <translation>The symlink “%1” could not be followed. Too many symlinks lead to the folder “%2/”.</translation>
    </message>
    <message>
        <source>source is the installed folder</source>
        <translation>The folder “%1” could not be installed. The folder is the same as the installed folder “%2”, which is emptied before files are copied. Install from another folder.</translation>
    </message>
    <message>
        <source>application is a symlink</source>
        <translation>The application “%1” could not be changed. The application is a symlink to “%2”. Remove the symlink and start the installer again.</translation>
    </message>
    <message>
        <source>symlink points outside</source>
        <translation>The application “%1” could not be changed. The symlink “%2” in the application points to “%3”, outside the application. Remove the symlink and start the installer again.</translation>
    </message>
    <message>
        <source>dangling symlink exists</source>
        <translation>“%1” could not be installed. A dangling symlink with the same name already exists. Uninstall quillbarn, then install quillbarn again.</translation>
    </message>
    <message>
        <source>names are equal</source>
        <translation>“%1” could not be installed. The volume does not distinguish this name from “%2”.</translation>
    </message>
    <message>
        <source>operation not started</source>
        <translation>The operation could not be started.</translation>
    </message>
    <message>
        <source>folder is locked</source>
        <translation>The folder “%1” could not be locked. Another program has locked the folder. Wait until the other program has finished, then start the installer again.</translation>
    </message>
    <message>
        <source>folder not opened</source>
        <translation>The folder “%1” could not be opened.</translation>
    </message>
    <message>
        <source>folder not created</source>
        <translation>The folder “%1” could not be created.</translation>
    </message>
    <message>
        <source>item not copied</source>
        <translation>“%1” could not be copied to “%2”.</translation>
    </message>
    <message>
        <source>item not removed</source>
        <translation>“%1” could not be removed.</translation>
    </message>
    <message>
        <source>changes not written</source>
        <translation>The changes in “%1” could not be written to the disk.</translation>
    </message>
    <message>
        <source>root can write</source>
        <translation>Only “root” can write to “%1”.</translation>
    </message>
    <message>
        <source>group can write</source>
        <translation>Only “root” and members of the group “%3” can write to “%1”.</translation>
    </message>
    <message>
        <source>owner can write</source>
        <translation>Only “root” and “%2” can write to “%1”.</translation>
    </message>
    <message>
        <source>owner and group can write</source>
        <translation>Only “root”, “%2” and members of the group “%3” can write to “%1”.</translation>
    </message>
    <message>
        <source>write permission required</source>
        <translation>Start the installer as a user with write permission.</translation>
    </message>
    <message>
        <source>item is special</source>
        <translation>“%1” could not be copied. The source is a device, a pipe or a socket.</translation>
    </message>
    <message>
        <source>item not read</source>
        <translation>“%1” could not be read.</translation>
    </message>
    <message>
        <source>two sentences</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>item not examined</source>
        <translation>“%1” could not be examined.</translation>
    </message>
    <message>
        <source>folder not read</source>
        <translation>The folder “%1” could not be read.</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>quillbarn installer</source>
        <translation>quillbarn installer</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>EACCES</source>
        <translation>You do not have the required permission (%1).</translation>
    </message>
    <message>
        <source>EAGAIN</source>
        <translation>A system resource is temporarily unavailable (%1). Try again later.</translation>
    </message>
    <message>
        <source>EBUSY</source>
        <translation>The file or folder is in use or is a mount point (%1).</translation>
    </message>
    <message>
        <source>EDQUOT</source>
        <translation>The disk quota is used up (%1). Free some space.</translation>
    </message>
    <message>
        <source>EEXIST</source>
        <translation>An item with the same name already exists (%1).</translation>
    </message>
    <message>
        <source>EFBIG</source>
        <translation>The file is too large for the volume or for the file size limit (%1).</translation>
    </message>
    <message>
        <source>EIO</source>
        <translation>A read or write error occurred (%1). Check the disk.</translation>
    </message>
    <message>
        <source>EISDIR</source>
        <translation>A folder was found in the place of a file (%1).</translation>
    </message>
    <message>
        <source>ELOOP</source>
        <translation>The path contains a symlink loop, or a symlink that the installer does not follow (%1).</translation>
    </message>
    <message>
        <source>EMFILE</source>
        <translation>The installer has too many open files (%1).</translation>
    </message>
    <message>
        <source>ENAMETOOLONG</source>
        <translation>A name or a path is too long (%1).</translation>
    </message>
    <message>
        <source>ENFILE</source>
        <translation>The system has too many open files (%1). Close other programs.</translation>
    </message>
    <message>
        <source>ENODATA</source>
        <translation>The file changed during the copy, or the disk has an error (%1).</translation>
    </message>
    <message>
        <source>ENOENT</source>
        <translation>The item, or a folder on the path, does not exist (%1).</translation>
    </message>
    <message>
        <source>ENOMEM</source>
        <translation>There is not enough memory (%1). Close other programs.</translation>
    </message>
    <message>
        <source>ENOSPC</source>
        <translation>The volume has no space left for data or for more files (%1). Free some space.</translation>
    </message>
    <message>
        <source>ENOSYS</source>
        <translation>The system or a sandbox does not provide a required function (%1). Linux 5.6 or later and the system call “openat2” are required.</translation>
    </message>
    <message>
        <source>ENOTDIR</source>
        <translation>The item, or a part of the path, is not a folder (%1).</translation>
    </message>
    <message>
        <source>ENOTEMPTY</source>
        <translation>The folder is not empty (%1).</translation>
    </message>
    <message>
        <source>EOPNOTSUPP</source>
        <translation>The volume does not support the operation (%1).</translation>
    </message>
    <message>
        <source>EPERM</source>
        <translation>The system does not permit the operation (%1). Possible causes: a protected item or folder (immutable, append-only or sticky bit), a volume without symlinks or hard links, or a sandbox.</translation>
    </message>
    <message>
        <source>EROFS</source>
        <translation>The volume is read-only (%1).</translation>
    </message>
    <message>
        <source>ETXTBSY</source>
        <translation>The file is in use as a running program or as swap space (%1). Quit the program.</translation>
    </message>
    <message>
        <source>EUCLEAN</source>
        <translation>The file system on the volume is damaged and must be repaired (%1).</translation>
    </message>
    <message>
        <source>EXDEV</source>
        <translation>A mount point is on the path (%1). The installer does not cross file system boundaries.</translation>
    </message>
    <message>
        <source>other</source>
        <translation>The system reported the error %1.</translation>
    </message>
</context>
<context>
    <name>Titles</name>
    <message>
        <source>Installing quillbarn</source>
        <translation>Installing quillbarn</translation>
    </message>
    <message>
        <source>quillbarn could not be installed</source>
        <translation>quillbarn could not be installed</translation>
    </message>
    <message>
        <source>Uninstalling quillbarn</source>
        <translation>Uninstalling quillbarn</translation>
    </message>
    <message>
        <source>quillbarn could not be uninstalled</source>
        <translation>quillbarn could not be uninstalled</translation>
    </message>
    <message>
        <source>Ejecting the disk image</source>
        <translation>Ejecting the disk image</translation>
    </message>
    <message>
        <source>Ejecting the disk image: trying again</source>
        <translation>Ejecting the disk image: trying again</translation>
    </message>
    <message>
        <source>The disk image could not be ejected</source>
        <translation>The disk image could not be ejected</translation>
    </message>
    <message>
        <source>quillbarn installer: invalid options</source>
        <translation>quillbarn installer: invalid options</translation>
    </message>
</context>
</TS>
