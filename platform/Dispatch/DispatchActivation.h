#pragma once

// The queues start inactive: what is submitted waits for this call, which is made once, on the main
// thread, when the application is on the screen. A task that had begun before could put the main
// thread to sleep with nothing shown yet.
void activateDispatchQueues();
