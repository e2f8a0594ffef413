#pragma once

// Unlike in CoreFoundation, where objects are made is up to the language.
class CFAllocator;
using CFAllocatorRef = CFAllocator*;

inline CFAllocatorRef CFAllocatorGetDefault()
{
    return nullptr;
}
