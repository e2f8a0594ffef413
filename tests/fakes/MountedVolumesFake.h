#pragma once

#include <string>
#include <vector>

// What NSFileManager tells of the mounted volumes from now on.
void setMountedVolumes(std::vector<std::string> mountPoints);

// How often it was asked since.
int mountedVolumesAsked();
