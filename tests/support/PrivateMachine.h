#pragma once

#include <string>

// Puts this process, and all it starts, in a machine of its own as far as files go: /tmp,
// /Applications, /Volumes and /run are new and empty, everything else is the real machine's.
// Ends with the process. To be called before there is a second thread. `keep` is a folder that
// stays visible even if it lies in one of those. Answers why it isn't permitted; empty: it is done.
std::string enterPrivateMachine(const std::string& keep);
