#include <AppKit/NSApplication.h>

int main(int argc, char* argv[])
{
    NSApplicationMain(argc, argv);
    return 0;
}
