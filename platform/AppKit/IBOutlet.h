#pragma once

#include <cstdio>
#include <cstdlib>
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

    // Unlike AppKit, using an outlet that is not connected ends the program, and says so.
    std::shared_ptr<Part> operator->() const
    {
        auto part = get();
        if (!part) {
            std::fputs("an outlet of the window is not connected\n", stderr);
            std::abort();
        }
        return part;
    }

private:
    std::weak_ptr<Part> m_part;
};
