#include "ViewController.h"

#include "Logger.h"

#include <Foundation/NSProcessInfo.h>
#include <Foundation/NSString.h>

#include <array>

namespace {

// Without the pair of single quotes around it. A quote that carries an accent is no quote.
std::string unquoted(const std::string& argument)
{
    const bool isQuoted = argument.size() >= 2 && NSString::firstCharacter(argument) == "'"
        && NSString::lastCharacter(argument) == "'";
    return isQuoted ? argument.substr(1, argument.size() - 2) : argument;
}

}

const ViewController::ModeTexts& ViewController::textsOf(Mode mode)
{
    static constexpr std::array<ModeTexts, 3> texts { {
        { "install", "Installing quillbarn", "", "quillbarn could not be installed" },
        { "uninstall", "Removing quillbarn", "", "quillbarn could not be removed" },
        { "unmount", "Ejecting the disk image",
            "Ejecting the disk image: waiting for the volume to be free",
            "The disk image could not be ejected" },
    } };
    return texts.at(std::size_t(mode));
}

std::optional<ViewController::CommandLineOption> ViewController::parseCommandLine() const
{
    std::optional<Mode> mode;
    std::optional<std::string> path;
    bool takeNext = false;
    for (const std::string& argument : NSProcessInfo::processInfo().arguments()) {
        const std::string text = unquoted(argument);
        if (takeNext) {
            path = text;
            break;
        }
        if (text == "-install") {
            mode = Mode::install;
            takeNext = true;
        } else if (text == "-install2") {
            mode = Mode::unmount;
            takeNext = true;
        } else if (text == "-uninstall") {
            mode = Mode::uninstall;
            path = "";
            break;
        }
    }
    if (m_test) {
        mode = Mode::unmount;
        path = "/Volumes/quillbarn installer/quillbarn.app";
    }
    if (!mode || !path)
        return std::nullopt;

    sharedLogger().log(textsOf(*mode).name + (' ' + *path), Logger::LogLevel::debug);
    return CommandLineOption { *mode, *path };
}
