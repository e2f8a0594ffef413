#pragma once

// Chooses the first language that the environment asks for, as the C library does, and that there
// is a catalogue for, else English. Makes the environment ask for that alone, so that the library
// and the toolkit speak it, too. Before there are threads.
void chooseLanguage();

// Installs the catalogues of that language, the program's and the toolkit's, and lays out windows
// the way it is written. Once the application object is there.
void speakChosenLanguage();
