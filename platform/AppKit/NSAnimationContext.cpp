#include <AppKit/NSAnimationContext.h>

#include <vector>

namespace {

std::vector<NSAnimationContext>& groups()
{
    static thread_local std::vector<NSAnimationContext> contexts(1);
    return contexts;
}

}

void NSAnimationContext::beginGrouping()
{
    groups().push_back(currentContext());
}

void NSAnimationContext::endGrouping()
{
    groups().pop_back();
}

NSAnimationContext& NSAnimationContext::currentContext()
{
    return groups().back();
}
