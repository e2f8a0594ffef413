#pragma once

#include <cassert>
#include <memory>

// A weak reference of a controller to a part of its window, which owns the part. Connected when the
// interface file is loaded.
template <class Part> class IBOutlet : public std::weak_ptr<Part> {
public:
    using std::weak_ptr<Part>::operator=;

    // Requires a connected outlet.
    std::shared_ptr<Part> operator->() const
    {
        auto part = this->lock();
        assert(part);
        return part;
    }
};
