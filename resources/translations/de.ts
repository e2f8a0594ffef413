<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Displays</name>
    <message>
        <source>The window can’t be opened by the plugin “%1”: install it, or unset QT_QPA_PLATFORM.</source>
        <translation>Das Fenster kann mit dem Plugin „%1“ nicht geöffnet werden: Installieren Sie das Plugin oder löschen Sie die Variable QT_QPA_PLATFORM.</translation>
    </message>
    <message>
        <source>The window can’t be opened on the Wayland display “%1”: check that WAYLAND_DISPLAY names a running compositor.</source>
        <translation>Das Fenster kann auf der Wayland-Anzeige „%1“ nicht geöffnet werden: Prüfen Sie, ob WAYLAND_DISPLAY einen laufenden Compositor nennt.</translation>
    </message>
    <message>
        <source>The window can’t be opened on the Wayland display “%1”: install the package qt6-wayland.</source>
        <translation>Das Fenster kann auf der Wayland-Anzeige „%1“ nicht geöffnet werden: Installieren Sie das Paket qt6-wayland.</translation>
    </message>
    <message>
        <source>The window can’t be opened on the display “%1”: check that DISPLAY names a running X server.</source>
        <translation>Das Fenster kann auf der Anzeige „%1“ nicht geöffnet werden: Prüfen Sie, ob DISPLAY einen laufenden X-Server nennt.</translation>
    </message>
    <message>
        <source>The window can’t be opened without a display: start it in a desktop session, or set DISPLAY.</source>
        <translation>Das Fenster kann ohne Anzeige nicht geöffnet werden: Starten Sie das Programm in einer Desktop-Sitzung oder setzen Sie die Variable DISPLAY.</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>The run couldn’t go on because the memory is used up.</source>
        <translation>Der Vorgang konnte nicht fortgesetzt werden, weil kein Arbeitsspeicher mehr frei ist.</translation>
    </message>
    <message>
        <source>The run couldn’t go on because of: %1</source>
        <translation>Der Vorgang konnte nicht fortgesetzt werden. Ursache: %1</translation>
    </message>
    <message>
        <source>“%1” couldn’t be changed because it is a link, to “%2”.</source>
        <translation>„%1“ konnte nicht geändert werden, weil es eine Verknüpfung mit „%2“ ist.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be installed because it is “%2”, which would be emptied first.</source>
        <translation>„%1“ konnte nicht installiert werden, weil es mit „%2“ identisch ist und zuvor geleert würde.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be changed because the link “%2” leads out of it, to “%3”.</source>
        <translation>„%1“ konnte nicht geändert werden, weil die enthaltene Verknüpfung „%2“ nach außen führt, zu „%3“.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be installed because a link that leads nowhere has its place. Uninstall first, which removes the link, too.</source>
        <translation>„%1“ konnte nicht installiert werden, weil an dieser Stelle eine Verknüpfung liegt, die ins Leere führt. Deinstallieren Sie zuerst; dabei wird auch die Verknüpfung entfernt.</translation>
    </message>
    <message>
        <source>The link “%1” couldn’t be followed because it leads back to “%2/”, a folder that holds it.</source>
        <translation>Der Verknüpfung „%1“ konnte nicht gefolgt werden, weil sie zu „%2/“ zurückführt, einem Ordner, in dem sie selbst liegt.</translation>
    </message>
    <message>
        <source>The work couldn’t be started because %1 (%2).</source>
        <translation>Der Vorgang konnte nicht gestartet werden: %1 (%2).</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be opened because another program holds it locked.</source>
        <translation>Der Ordner „%1“ konnte nicht geöffnet werden, weil ein anderes Programm ihn gesperrt hält.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be opened because %2 (%3).</source>
        <translation>Der Ordner „%1“ konnte nicht geöffnet werden: %2 (%3).</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created because %2 (%3).</source>
        <translation>Der Ordner „%1“ konnte nicht angelegt werden: %2 (%3).</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied to “%2” because it is a device, a pipe or a socket.</source>
        <translation>„%1“ konnte nicht nach „%2“ kopiert werden, weil es ein Gerät, eine Pipe oder ein Socket ist.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied to “%2” because %3 (%4).</source>
        <translation>„%1“ konnte nicht nach „%2“ kopiert werden: %3 (%4).</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed because %2 (%3).</source>
        <translation>„%1“ konnte nicht entfernt werden: %2 (%3).</translation>
    </message>
    <message>
        <source>What was changed in “%1” couldn’t be written to the disk because %2 (%3).</source>
        <translation>Die Änderungen in „%1“ konnten nicht auf den Datenträger geschrieben werden: %2 (%3).</translation>
    </message>
    <message>
        <source>%1 Only “root” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 Nur „root“ darf in „%2“ schreiben: Starten Sie das Installationsprogramm mit einem Benutzerkonto, das dazu berechtigt ist.</translation>
    </message>
    <message>
        <source>%1 Only “root” and the group “%4” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 Nur „root“ und die Gruppe „%4“ dürfen in „%2“ schreiben: Starten Sie das Installationsprogramm mit einem Benutzerkonto, das dazu berechtigt ist.</translation>
    </message>
    <message>
        <source>%1 Only “root” and “%3” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 Nur „root“ und „%3“ dürfen in „%2“ schreiben: Starten Sie das Installationsprogramm mit einem Benutzerkonto, das dazu berechtigt ist.</translation>
    </message>
    <message>
        <source>%1 Only “root” and “%3” and the group “%4” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 Nur „root“, „%3“ und die Gruppe „%4“ dürfen in „%2“ schreiben: Starten Sie das Installationsprogramm mit einem Benutzerkonto, das dazu berechtigt ist.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be read because %2 (%3).</source>
        <translation>„%1“ konnte nicht gelesen werden: %2 (%3).</translation>
    </message>
    <message>
        <source>“%1” couldn’t be looked at because %2 (%3).</source>
        <translation>Die Informationen zu „%1“ konnten nicht abgerufen werden: %2 (%3).</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>quillbarn installer</source>
        <translation>quillbarn-Installationsprogramm</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>you don’t have permission to access it</source>
        <translation>Sie haben keine Zugriffsberechtigung</translation>
    </message>
    <message>
        <source>it is in use, or another volume is mounted there</source>
        <translation>Das Objekt wird gerade verwendet oder ein anderer Datenträger ist dort eingehängt</translation>
    </message>
    <message>
        <source>your share of the volume’s space is used up</source>
        <translation>Ihr Anteil am Speicherplatz des Datenträgers ist aufgebraucht</translation>
    </message>
    <message>
        <source>an item with the same name already exists</source>
        <translation>Ein Objekt mit diesem Namen existiert bereits</translation>
    </message>
    <message>
        <source>it is larger than a file may be</source>
        <translation>Die Datei überschreitet die zulässige Größe</translation>
    </message>
    <message>
        <source>the disk reported a fault</source>
        <translation>Der Datenträger hat einen Fehler gemeldet</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>Es handelt sich um einen Ordner</translation>
    </message>
    <message>
        <source>a link is on its path</source>
        <translation>Auf dem Pfad liegt eine Verknüpfung</translation>
    </message>
    <message>
        <source>its name or path is too long</source>
        <translation>Der Name oder der Pfad ist zu lang</translation>
    </message>
    <message>
        <source>its data ended early: it was changed meanwhile, or the disk reported a fault</source>
        <translation>Die Daten endeten vorzeitig, weil sie währenddessen geändert wurden oder der Datenträger einen Fehler gemeldet hat</translation>
    </message>
    <message>
        <source>it doesn’t exist</source>
        <translation>Das Objekt existiert nicht</translation>
    </message>
    <message>
        <source>the memory is used up</source>
        <translation>Es ist kein Arbeitsspeicher mehr frei</translation>
    </message>
    <message>
        <source>the volume is out of space</source>
        <translation>Auf dem Datenträger ist kein Speicherplatz mehr frei</translation>
    </message>
    <message>
        <source>that takes Linux 5.6 or later, and no sandbox that hides openat2</source>
        <translation>Dazu wird Linux 5.6 oder neuer benötigt und keine Sandbox, die openat2 verbirgt</translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation>Ein Teil des Pfades ist kein Ordner</translation>
    </message>
    <message>
        <source>it is not empty</source>
        <translation>Der Ordner ist nicht leer</translation>
    </message>
    <message>
        <source>it or its folder is protected: immutable, append-only or sticky</source>
        <translation>Das Objekt oder sein Ordner ist geschützt – unveränderlich, nur zum Anhängen oder mit Sticky-Bit</translation>
    </message>
    <message>
        <source>the volume is read only</source>
        <translation>Der Datenträger ist schreibgeschützt</translation>
    </message>
    <message>
        <source>it lies on another volume, which is mounted there</source>
        <translation>Das Objekt liegt auf einem anderen Datenträger, der dort eingehängt ist</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>Das System hat den Vorgang abgelehnt</translation>
    </message>
</context>
<context>
    <name>Titles</name>
    <message>
        <source>Installing quillbarn</source>
        <translation>quillbarn wird installiert</translation>
    </message>
    <message>
        <source>quillbarn could not be installed</source>
        <translation>quillbarn konnte nicht installiert werden</translation>
    </message>
    <message>
        <source>Removing quillbarn</source>
        <translation>quillbarn wird entfernt</translation>
    </message>
    <message>
        <source>quillbarn could not be removed</source>
        <translation>quillbarn konnte nicht entfernt werden</translation>
    </message>
    <message>
        <source>Ejecting the disk image</source>
        <translation>Datenträgerabbild wird ausgeworfen</translation>
    </message>
    <message>
        <source>Ejecting the disk image: waiting for the volume to be free</source>
        <translation>Auswerfen: Warten, bis der Datenträger frei ist</translation>
    </message>
    <message>
        <source>The disk image could not be ejected</source>
        <translation>Das Datenträgerabbild konnte nicht ausgeworfen werden</translation>
    </message>
</context>
</TS>
