#pragma once

#include <functional>
#include <string>
#include <vector>

constexpr int nothing = 0; // in the place of an error: the call succeeds, and has done nothing

enum Part { content, mode, owner, times, attribute }; // of a file

// A call to the system on a file, the places of its descriptor and of its path among its arguments,
// and the errors it is to fail with.
struct FileCall {
    const char* name;
    int number;
    int descriptor;
    int path;
    std::vector<int> errors;
    Part part = content; // that a file may go without, where that is refused
};

const std::vector<FileCall>& fileCalls();

// Each lacks what the one before it lacks, and more: nameless files; copying by itself and renaming
// that refuses to replace.
enum class Volume { complete, plain, simple };

struct Fault {
    const FileCall& call;
    int error; // `nothing` comes again and again
    int step; // of the calls on the files of the run, from 1
    Volume volume;

    // What became of it.
    int calls = 0;
    std::string path = {}; // of the call that failed
    bool hasLostData = false; // what was written is not on the disk
};

// Runs `work` on a thread of its own, for which calls fail.
void runWithFault(Fault& fault, const std::function<void()>& work);
