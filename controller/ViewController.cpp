#include "ViewController.h"

std::shared_ptr<ViewController> ViewController::initWithCoder(const NSCoder& coder)
{
    const std::shared_ptr<ViewController> controller(new ViewController);
    return controller->NSViewController::initWithCoder(coder) ? controller : nullptr;
}

std::shared_ptr<ViewController> ViewController::initWithNibName(
    const std::string& nibName, const NSBundle* bundle)
{
    const std::shared_ptr<ViewController> controller(new ViewController);
    return NSViewController::initWithNibName(nibName, bundle) ? controller : nullptr;
}

std::shared_ptr<ViewController> ViewController::self()
{
    return std::static_pointer_cast<ViewController>(shared_from_this());
}
