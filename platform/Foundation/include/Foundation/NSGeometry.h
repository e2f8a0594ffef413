#pragma once

// Lengths and positions on the screen, in points: pixels at scale factor 1. y grows downwards.
using CGFloat = double;

struct NSPoint {
    CGFloat x = 0, y = 0;
};

struct NSSize {
    CGFloat width = 0, height = 0;
};

struct NSRect {
    NSPoint origin;
    NSSize size;
};
