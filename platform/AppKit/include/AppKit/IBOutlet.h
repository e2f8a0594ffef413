#pragma once

#include <cassert>
#include <memory>

// A controller's reference to a part of its window: weak, as the window owns its parts, and
// connected when the interface file is loaded.
template <class Part> class IBOutlet : public std::weak_ptr<Part> {
public:
    using std::weak_ptr<Part>::operator=;

    // Of an outlet that is connected.
    std::shared_ptr<Part> operator->() const
    {
        auto part = this->lock();
        assert(part);
        return part;
    }
};
