#pragma once

#include <QTest>

// Runs the loop of the main thread until the condition holds, for ten seconds at most. Whether it
// does.
bool runMainLoopUntil(const auto& condition) { return QTest::qWaitFor(condition, 10'000); }
