#pragma once

// Chooses the first language of the environment for which a catalogue exists, by the rules of the C
// library, otherwise English. Sets LANGUAGE to it, which the toolkit reads, too. Call before the
// first thread starts.
void chooseLanguage();

// Installs the catalogues of that language, the program's and the toolkit's, and sets the direction
// of layouts. After the application object has been created.
void installTranslations();
