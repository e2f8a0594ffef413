#pragma once

#include <QIcon>

// The installer's icon: a box that an arrow goes into.
QIcon installerIcon();
