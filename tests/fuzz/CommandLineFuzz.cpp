#include "Fuzz.h"
#include "ViewController.h"
#include "fakes/NSProcessInfoFake.h"

// What is asked for stands in the arguments, and nothing that follows changes it.
void tryOne(FuzzedDataProvider& draw)
{
    const std::array<std::string, 3> names { "-install", "-uninstall", "-install2" };
    std::vector<std::string> arguments;
    while (draw.remaining_bytes() > 0)
        arguments.push_back(draw.ConsumeBool() ? draw.PickValueInArray(names) : drawText(draw));
    const auto parsed = [&] {
        static const auto controller = ViewController::initWithNibName("MainInterface", nullptr);
        writeFile("/tmp/quillbarninstaller.log");
        setArguments(arguments);
        return controller->parseCommandLine();
    };
    const auto isGiven = [&](const std::string& text) {
        return std::ranges::count(arguments, text) > 0
            || std::ranges::count(arguments, "'" + text + "'") > 0;
    };
    const auto option = parsed();
    if (option) {
        const bool takesPath = option->mode != ViewController::Mode::uninstall;
        assert(isGiven(names.at(std::size_t(option->mode))));
        assert(takesPath ? isGiven(option->path) : option->path.empty());
    }
    arguments.emplace_back("-uninstall");
    const auto longer = parsed();
    assert(longer);
    assert(!option || (option->mode == longer->mode && option->path == longer->path));
}
