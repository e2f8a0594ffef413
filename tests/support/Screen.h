#pragma once

#include <string>

// What a person sees of the one window, and does to it.

bool isWindowOnScreen();
bool isPaneShown();
std::string windowTitle();
std::string buttonDescription(); // which a screen reader says

// The text in the result pane, and its part that is in view: the first row and the last.
std::string shownText();
std::string firstShownRow();
std::string lastShownRow();

void press(int key); // a Qt::Key, where the keyboard is
void pressInText(int key);
void resizeWindow(int width, int height);
