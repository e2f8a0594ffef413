#include "Modes.h"

#include "ViewController.h"

#include <algorithm>
#include <array>

namespace {

const auto& modes()
{
    static const std::array<ModeInfo, 3> table { {
        { Mode::install, "-install", "install", true,
            NSLocalizedString("Titles", "Installing quillbarn"), "",
            NSLocalizedString("Titles", "quillbarn could not be installed"),
            [](auto& controller, const auto& path) { controller.installBundle(path); } },
        { Mode::uninstall, "-uninstall", "uninstall", false,
            NSLocalizedString("Titles", "Uninstalling quillbarn"), "",
            NSLocalizedString("Titles", "quillbarn could not be uninstalled"),
            [](auto& controller, const auto&) { controller.uninstallBundle(); } },
        { Mode::unmount, "-install2", "unmount", true,
            NSLocalizedString("Titles", "Ejecting the disk image"),
            NSLocalizedString("Titles", "Ejecting the disk image: trying again"),
            NSLocalizedString("Titles", "The disk image could not be ejected"),
            [](auto& controller, const auto& path) { controller.unmountDiskImage(path); } },
    } };
    return table;
}

}

const ModeInfo& infoOf(Mode mode) { return *std::ranges::find(modes(), mode, &ModeInfo::mode); }

const ModeInfo* modeOfArgument(const std::string& argument)
{
    const auto* const found = std::ranges::find(modes(), argument, &ModeInfo::argument);
    return found != modes().end() ? found : nullptr;
}
