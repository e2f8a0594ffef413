#pragma once

#include <cerrno>
#include <functional>
#include <string>
#include <vector>

constexpr int nothing = 0; // in the place of an error: the call succeeds, and has done nothing

enum Part { mode, owner, times, attribute, content }; // of a file

// A call to the system on a file, and the errors it is to fail with. An interrupted call is made
// again.
struct FileCall {
    const char* name;
    int number;
    int path = 0; // its place among the arguments, after its folder's; 0: a descriptor is there
    std::vector<int> errors = { EINTR, EIO };
    Part part = content; // that a file may go without, where that is refused
};

// With one error of each branch that the program takes.
extern const std::vector<FileCall> fileCalls;

// Each lacks what the one before it lacks, and more: nameless files; copying by itself and renaming
// that refuses to replace.
enum class Volume { complete, plain, simple };

struct Fault {
    const FileCall& call;
    Volume volume;
    int error = EIO; // `nothing` comes again and again
    int step = 0; // of the calls on the files of the run, from 1; 0: none fails

    // What became of it.
    int calls = 0;
    std::string path = {}; // of the call that failed
    bool hasLostData = false; // what was written is not on the disk
};

// Runs `work` on a thread of its own, for which calls fail.
void runWithFault(Fault& fault, const std::function<void()>& work);
