<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Displays</name>
    <message>
        <source>plugin not found</source>
        <translation>Das Fenster konnte mit dem Qt-Plattform-Plugin „%1“ nicht geöffnet werden. Installieren Sie das Plugin oder löschen Sie die Variable QT_QPA_PLATFORM.</translation>
    </message>
    <message>
        <source>Wayland display not found</source>
        <translation>Das Fenster konnte auf der Wayland-Anzeige „%1“ nicht geöffnet werden. Prüfen Sie, ob WAYLAND_DISPLAY auf einen laufenden Compositor verweist.</translation>
    </message>
    <message>
        <source>Wayland plugin not found</source>
        <translation>Das Fenster konnte auf der Wayland-Anzeige „%1“ nicht geöffnet werden. Installieren Sie das Paket qt6-wayland.</translation>
    </message>
    <message>
        <source>X display not found</source>
        <translation>Das Fenster konnte auf der Anzeige „%1“ nicht geöffnet werden. Prüfen Sie, ob DISPLAY auf einen laufenden X-Server verweist.</translation>
    </message>
    <message>
        <source>no display</source>
        <translation>Das Fenster konnte ohne Anzeige nicht geöffnet werden. Starten Sie das Installationsprogramm in einer Desktop-Sitzung oder setzen Sie DISPLAY oder WAYLAND_DISPLAY.</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>out of memory</source>
        <translation>Der Vorgang konnte nicht fortgesetzt werden. Es ist nicht genügend Arbeitsspeicher verfügbar.</translation>
    </message>
    <message>
        <source>internal error</source>
        <translation>Der Vorgang konnte nicht fortgesetzt werden. Interner Fehler: %1</translation>
    </message>
    <message>
        <source>incomplete, install again</source>
        <translation>Die Kopie von quillbarn in „%1“ ist unvollständig. Installieren Sie quillbarn erneut.</translation>
    </message>
    <message>
        <source>incomplete, uninstall again</source>
        <translation>Die Kopie von quillbarn in „%1“ ist unvollständig. Deinstallieren Sie quillbarn erneut.</translation>
    </message>
    <message>
        <source>maybe incomplete</source>
        <translation>Die Kopie von quillbarn in „%1“ ist möglicherweise unvollständig. Starten Sie das Installationsprogramm erneut.</translation>
    </message>
    <message>
        <source>symlink loop</source>
        <translation>Der symbolischen Verknüpfung „%1“ konnte nicht gefolgt werden. Das Ziel „%2/“ ist ein Ordner, der die Verknüpfung enthält (Endlosschleife).</translation>
    </message>
    <message>
        <source>too many symlinks</source>
        <translation>Der symbolischen Verknüpfung „%1“ konnte nicht gefolgt werden. Zu viele symbolische Verknüpfungen führen zum Ordner „%2/“.</translation>
    </message>
    <message>
        <source>source is the installed folder</source>
        <translation>Der Ordner „%1“ konnte nicht installiert werden. Der Ordner ist identisch mit dem installierten Ordner „%2“, der vor dem Kopieren geleert wird. Installieren Sie quillbarn aus einem anderen Ordner.</translation>
    </message>
    <message>
        <source>application is a symlink</source>
        <translation>Die Anwendung „%1“ konnte nicht geändert werden. Die Anwendung ist eine symbolische Verknüpfung zu „%2“. Entfernen Sie die Verknüpfung und starten Sie das Installationsprogramm erneut.</translation>
    </message>
    <message>
        <source>symlink points outside</source>
        <translation>Die Anwendung „%1“ konnte nicht geändert werden. Die symbolische Verknüpfung „%2“ in der Anwendung verweist auf „%3“ außerhalb der Anwendung. Entfernen Sie die Verknüpfung und starten Sie das Installationsprogramm erneut.</translation>
    </message>
    <message>
        <source>dangling symlink exists</source>
        <translation>„%1“ konnte nicht installiert werden. Eine defekte symbolische Verknüpfung mit demselben Namen existiert bereits. Deinstallieren Sie quillbarn und installieren Sie quillbarn dann erneut.</translation>
    </message>
    <message>
        <source>names are equal</source>
        <translation>„%1“ konnte nicht installiert werden. Auf dem Datenträger gelten dieser Name und „%2“ als identisch.</translation>
    </message>
    <message>
        <source>operation not started</source>
        <translation>Der Vorgang konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>folder is locked</source>
        <translation>Der Ordner „%1“ konnte nicht gesperrt werden. Ein anderes Programm hat den Ordner gesperrt. Warten Sie, bis das andere Programm beendet ist, und starten Sie dann das Installationsprogramm erneut.</translation>
    </message>
    <message>
        <source>folder not opened</source>
        <translation>Der Ordner „%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>folder not created</source>
        <translation>Der Ordner „%1“ konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>item not copied</source>
        <translation>„%1“ konnte nicht nach „%2“ kopiert werden.</translation>
    </message>
    <message>
        <source>item not removed</source>
        <translation>„%1“ konnte nicht entfernt werden.</translation>
    </message>
    <message>
        <source>changes not written</source>
        <translation>Die Änderungen in „%1“ konnten nicht auf den Datenträger geschrieben werden.</translation>
    </message>
    <message>
        <source>root can write</source>
        <translation>Nur „root“ kann in „%1“ schreiben.</translation>
    </message>
    <message>
        <source>group can write</source>
        <translation>Nur „root“ und Mitglieder der Gruppe „%3“ können in „%1“ schreiben.</translation>
    </message>
    <message>
        <source>owner can write</source>
        <translation>Nur „root“ und „%2“ können in „%1“ schreiben.</translation>
    </message>
    <message>
        <source>owner and group can write</source>
        <translation>Nur „root“, „%2“ und Mitglieder der Gruppe „%3“ können in „%1“ schreiben.</translation>
    </message>
    <message>
        <source>write permission required</source>
        <translation>Starten Sie das Installationsprogramm als Benutzer mit Schreibrechten.</translation>
    </message>
    <message>
        <source>item is special</source>
        <translation>„%1“ konnte nicht kopiert werden. Die Quelle ist ein Gerät, eine Pipe oder ein Socket.</translation>
    </message>
    <message>
        <source>item not read</source>
        <translation>„%1“ konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>two sentences</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>item not examined</source>
        <translation>Die Eigenschaften von „%1“ konnten nicht ermittelt werden.</translation>
    </message>
    <message>
        <source>folder not read</source>
        <translation>Der Ordner „%1“ konnte nicht gelesen werden.</translation>
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
        <source>EACCES</source>
        <translation>Sie besitzen nicht die nötigen Zugriffsrechte (%1).</translation>
    </message>
    <message>
        <source>EAGAIN</source>
        <translation>Eine Systemressource ist vorübergehend nicht verfügbar (%1). Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>EBUSY</source>
        <translation>Die Datei oder der Ordner wird verwendet oder ist ein Einhängepunkt (%1).</translation>
    </message>
    <message>
        <source>EDQUOT</source>
        <translation>Das Speicherplatzkontingent (Quota) ist aufgebraucht (%1). Geben Sie Speicherplatz frei.</translation>
    </message>
    <message>
        <source>EEXIST</source>
        <translation>Ein Objekt mit demselben Namen existiert bereits (%1).</translation>
    </message>
    <message>
        <source>EFBIG</source>
        <translation>Die Datei ist zu groß für den Datenträger oder überschreitet die zulässige Dateigröße (%1).</translation>
    </message>
    <message>
        <source>EIO</source>
        <translation>Beim Lesen oder Schreiben ist ein Fehler aufgetreten (%1). Prüfen Sie den Datenträger.</translation>
    </message>
    <message>
        <source>EISDIR</source>
        <translation>Anstelle einer Datei wurde ein Ordner gefunden (%1).</translation>
    </message>
    <message>
        <source>ELOOP</source>
        <translation>Der Pfad enthält eine Schleife aus symbolischen Verknüpfungen oder eine symbolische Verknüpfung, der das Installationsprogramm nicht folgt (%1).</translation>
    </message>
    <message>
        <source>EMFILE</source>
        <translation>Das Installationsprogramm hat zu viele Dateien geöffnet (%1).</translation>
    </message>
    <message>
        <source>ENAMETOOLONG</source>
        <translation>Ein Name oder ein Pfad ist zu lang (%1).</translation>
    </message>
    <message>
        <source>ENFILE</source>
        <translation>Auf dem System sind zu viele Dateien geöffnet (%1). Beenden Sie andere Programme.</translation>
    </message>
    <message>
        <source>ENODATA</source>
        <translation>Die Datei wurde während des Kopierens geändert oder der Datenträger ist fehlerhaft (%1).</translation>
    </message>
    <message>
        <source>ENOENT</source>
        <translation>Das Objekt oder ein Ordner im Pfad existiert nicht (%1).</translation>
    </message>
    <message>
        <source>ENOMEM</source>
        <translation>Es ist nicht genügend Arbeitsspeicher verfügbar (%1). Beenden Sie andere Programme.</translation>
    </message>
    <message>
        <source>ENOSPC</source>
        <translation>Auf dem Datenträger ist kein Platz für weitere Daten oder Dateien (%1). Geben Sie Speicherplatz frei.</translation>
    </message>
    <message>
        <source>ENOSYS</source>
        <translation>Das System oder eine Sandbox stellt eine benötigte Funktion nicht bereit (%1). Erforderlich sind Linux 5.6 oder neuer und der Systemaufruf „openat2“.</translation>
    </message>
    <message>
        <source>ENOTDIR</source>
        <translation>Das Objekt oder ein Teil des Pfads ist kein Ordner (%1).</translation>
    </message>
    <message>
        <source>ENOTEMPTY</source>
        <translation>Der Ordner ist nicht leer (%1).</translation>
    </message>
    <message>
        <source>EOPNOTSUPP</source>
        <translation>Der Datenträger unterstützt den Vorgang nicht (%1).</translation>
    </message>
    <message>
        <source>EPERM</source>
        <translation>Das System lässt den Vorgang nicht zu (%1). Mögliche Ursachen: ein geschütztes Objekt oder ein geschützter Ordner (unveränderlich, nur Anhängen oder Sticky-Bit), ein Datenträger ohne Unterstützung für symbolische oder harte Verknüpfungen oder eine Sandbox.</translation>
    </message>
    <message>
        <source>EROFS</source>
        <translation>Der Datenträger ist schreibgeschützt (%1).</translation>
    </message>
    <message>
        <source>ETXTBSY</source>
        <translation>Die Datei wird als laufendes Programm oder als Auslagerungsspeicher verwendet (%1). Beenden Sie das Programm.</translation>
    </message>
    <message>
        <source>EUCLEAN</source>
        <translation>Das Dateisystem auf dem Datenträger ist beschädigt und muss repariert werden (%1).</translation>
    </message>
    <message>
        <source>EXDEV</source>
        <translation>Im Pfad liegt ein Einhängepunkt (%1). Das Installationsprogramm überschreitet keine Dateisystemgrenzen.</translation>
    </message>
    <message>
        <source>other</source>
        <translation>Das System hat den Fehler %1 gemeldet.</translation>
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
        <source>Uninstalling quillbarn</source>
        <translation>quillbarn wird deinstalliert</translation>
    </message>
    <message>
        <source>quillbarn could not be uninstalled</source>
        <translation>quillbarn konnte nicht deinstalliert werden</translation>
    </message>
    <message>
        <source>Ejecting the disk image</source>
        <translation>Laufwerksabbild wird ausgeworfen</translation>
    </message>
    <message>
        <source>Ejecting the disk image: trying again</source>
        <translation>Laufwerksabbild wird ausgeworfen: neuer Versuch</translation>
    </message>
    <message>
        <source>The disk image could not be ejected</source>
        <translation>Laufwerksabbild konnte nicht ausgeworfen werden</translation>
    </message>
    <message>
        <source>quillbarn installer: invalid options</source>
        <translation>quillbarn-Installationsprogramm: ungültige Optionen</translation>
    </message>
</context>
</TS>
