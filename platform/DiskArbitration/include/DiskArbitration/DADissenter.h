#pragma once

// That a request was refused. Unlike in DiskArbitration, it doesn't say why: nobody asks.
struct DADissenter {};
