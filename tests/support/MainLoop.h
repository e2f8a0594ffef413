#pragma once

#include <QTest>

// Runs the main loop until the condition holds, for at most ten seconds. Returns whether it holds.
bool runMainLoopUntil(const auto& condition) { return QTest::qWaitFor(condition, 10'000); }
