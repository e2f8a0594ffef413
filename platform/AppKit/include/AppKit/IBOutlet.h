#pragma once

#include <cassert>
#include <memory>

// A controller's reference to a part of its window: weak, as the window owns its parts, and
// connected when the interface file is loaded.
template <class Part> class IBOutlet {
public:
    IBOutlet& operator=(const std::shared_ptr<Part>& part)
    {
        m_part = part;
        return *this;
    }

    // nullptr before the connection is made, and after the part has gone.
    std::shared_ptr<Part> get() const { return m_part.lock(); }

    // Of an outlet that is connected.
    std::shared_ptr<Part> operator->() const
    {
        auto part = get();
        assert(part);
        return part;
    }

private:
    std::weak_ptr<Part> m_part;
};
