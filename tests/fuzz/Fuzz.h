#pragma once

#include "support/Tree.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <fuzzer/FuzzedDataProvider.h>

// Defined by each program, whose only source includes this: draws an input, and asserts what holds
// whatever was drawn.
void tryOne(FuzzedDataProvider& draw);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    FuzzedDataProvider draw(bytes, size);
    tryOne(draw);
    return 0;
}

// Any bytes, with more of what is unlike other text.
inline std::string drawText(FuzzedDataProvider& draw)
{
    static constexpr std::array<const char*, 9> odd { "'", "/", "e", "\u0301", "\u00E9", "\uFEFF",
        "\uFFFD", "\r", "\n" };
    std::string text;
    while (draw.ConsumeBool())
        text += draw.ConsumeBool() ? draw.PickValueInArray(odd) : draw.ConsumeRandomLengthString(8);
    return text;
}
