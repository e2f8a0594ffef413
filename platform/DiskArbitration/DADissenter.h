#pragma once

#include <string>

enum DAReturn {
    kDAReturnError,
    kDAReturnBusy,
    kDAReturnNotMounted,
    kDAReturnNotPermitted,
    kDAReturnUnsupported,
};

// Why a request was refused. Unlike in DiskArbitration, a plain value.
struct DADissenter {
    DAReturn status;
    std::string statusString; // in the disk service's words
};
