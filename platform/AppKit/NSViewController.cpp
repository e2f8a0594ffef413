#include <AppKit/NSViewController.h>

#include <AppKit/NSCoder.h>
#include <AppKit/NSWindow.h>

bool NSViewController::initWithCoder(const NSCoder& coder)
{
    if (!coder.window())
        return false;
    m_view = coder.window()->contentView();
    return true;
}

bool NSViewController::initWithNibName(const std::string&, const NSBundle*)
{
    return true;
}
