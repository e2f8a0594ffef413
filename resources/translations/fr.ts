<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Displays</name>
    <message>
        <source>The window can’t be opened by the plugin “%1”: install it, or unset QT_QPA_PLATFORM.</source>
        <translation>La fenêtre ne peut pas être ouverte avec le greffon «&#xa0;%1&#xa0;»&#xa0;: installez-le ou supprimez la variable QT_QPA_PLATFORM.</translation>
    </message>
    <message>
        <source>The window can’t be opened on the Wayland display “%1”: check that WAYLAND_DISPLAY names a running compositor.</source>
        <translation>La fenêtre ne peut pas être ouverte sur l’affichage Wayland «&#xa0;%1&#xa0;»&#xa0;: vérifiez que WAYLAND_DISPLAY désigne un compositeur en cours d’exécution.</translation>
    </message>
    <message>
        <source>The window can’t be opened on the Wayland display “%1”: install the package qt6-wayland.</source>
        <translation>La fenêtre ne peut pas être ouverte sur l’affichage Wayland «&#xa0;%1&#xa0;»&#xa0;: installez le paquet qt6-wayland.</translation>
    </message>
    <message>
        <source>The window can’t be opened on the display “%1”: check that DISPLAY names a running X server.</source>
        <translation>La fenêtre ne peut pas être ouverte sur l’affichage «&#xa0;%1&#xa0;»&#xa0;: vérifiez que DISPLAY désigne un serveur X en cours d’exécution.</translation>
    </message>
    <message>
        <source>The window can’t be opened without a display: start it in a desktop session, or set DISPLAY.</source>
        <translation>La fenêtre ne peut pas être ouverte sans affichage&#xa0;: lancez le programme dans une session de bureau ou définissez la variable DISPLAY.</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>The run couldn’t go on because the memory is used up.</source>
        <translation>L’opération n’a pas pu se poursuivre, car la mémoire est épuisée.</translation>
    </message>
    <message>
        <source>The run couldn’t go on because of: %1</source>
        <translation>L’opération n’a pas pu se poursuivre. Cause&#xa0;: %1</translation>
    </message>
    <message>
        <source>“%1” couldn’t be changed because it is a link, to “%2”.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être modifié, car il s’agit d’un lien vers «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” couldn’t be installed because it is “%2”, which would be emptied first.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être installé, car il s’agit de «&#xa0;%2&#xa0;», qui serait d’abord vidé.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be changed because the link “%2” leads out of it, to “%3”.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être modifié, car le lien «&#xa0;%2&#xa0;» mène à l’extérieur, vers «&#xa0;%3&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” couldn’t be installed because a link that leads nowhere has its place. Uninstall first, which removes the link, too.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être installé, car un lien qui ne mène nulle part occupe sa place. Désinstallez d’abord l’application&#xa0;: le lien sera aussi supprimé.</translation>
    </message>
    <message>
        <source>The link “%1” couldn’t be followed because it leads back to “%2/”, a folder that holds it.</source>
        <translation>Le lien «&#xa0;%1&#xa0;» n’a pas pu être suivi, car il ramène à «&#xa0;%2/&#xa0;», un dossier qui le contient.</translation>
    </message>
    <message>
        <source>The work couldn’t be started because %1 (%2).</source>
        <translation>Le travail n’a pas pu être lancé&#xa0;: %1 (%2).</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be opened because another program holds it locked.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n’a pas pu être ouvert, car un autre programme le garde verrouillé.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be opened because %2 (%3).</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n’a pas pu être ouvert&#xa0;: %2 (%3).</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created because %2 (%3).</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n’a pas pu être créé&#xa0;: %2 (%3).</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied to “%2” because it is a device, a pipe or a socket.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être copié vers «&#xa0;%2&#xa0;», car il s’agit d’un périphérique, d’un tube ou d’un socket.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied to “%2” because %3 (%4).</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être copié vers «&#xa0;%2&#xa0;»&#xa0;: %3 (%4).</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed because %2 (%3).</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être supprimé&#xa0;: %2 (%3).</translation>
    </message>
    <message>
        <source>What was changed in “%1” couldn’t be written to the disk because %2 (%3).</source>
        <translation>Les modifications apportées à «&#xa0;%1&#xa0;» n’ont pas pu être écrites sur le disque&#xa0;: %2 (%3).</translation>
    </message>
    <message>
        <source>%1 Only “root” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 Seul «&#xa0;root&#xa0;» peut écrire dans «&#xa0;%2&#xa0;»&#xa0;: lancez l’installateur avec un compte qui en a le droit.</translation>
    </message>
    <message>
        <source>%1 Only “root” and the group “%4” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 Seuls «&#xa0;root&#xa0;» et le groupe «&#xa0;%4&#xa0;» peuvent écrire dans «&#xa0;%2&#xa0;»&#xa0;: lancez l’installateur avec un compte qui en a le droit.</translation>
    </message>
    <message>
        <source>%1 Only “root” and “%3” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 Seuls «&#xa0;root&#xa0;» et «&#xa0;%3&#xa0;» peuvent écrire dans «&#xa0;%2&#xa0;»&#xa0;: lancez l’installateur avec un compte qui en a le droit.</translation>
    </message>
    <message>
        <source>%1 Only “root” and “%3” and the group “%4” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 Seuls «&#xa0;root&#xa0;», «&#xa0;%3&#xa0;» et le groupe «&#xa0;%4&#xa0;» peuvent écrire dans «&#xa0;%2&#xa0;»&#xa0;: lancez l’installateur avec un compte qui en a le droit.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be read because %2 (%3).</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être lu&#xa0;: %2 (%3).</translation>
    </message>
    <message>
        <source>“%1” couldn’t be looked at because %2 (%3).</source>
        <translation>Les informations sur «&#xa0;%1&#xa0;» n’ont pas pu être obtenues&#xa0;: %2 (%3).</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>quillbarn installer</source>
        <translation>Installateur de quillbarn</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>you don’t have permission to access it</source>
        <translation>vous n’avez pas l’autorisation d’y accéder</translation>
    </message>
    <message>
        <source>it is in use, or another volume is mounted there</source>
        <translation>l’élément est en cours d’utilisation ou un autre volume y est monté</translation>
    </message>
    <message>
        <source>your share of the volume’s space is used up</source>
        <translation>votre part de l’espace du volume est épuisée</translation>
    </message>
    <message>
        <source>an item with the same name already exists</source>
        <translation>un élément du même nom existe déjà</translation>
    </message>
    <message>
        <source>it is larger than a file may be</source>
        <translation>le fichier dépasse la taille autorisée</translation>
    </message>
    <message>
        <source>the disk reported a fault</source>
        <translation>le disque a signalé une erreur</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>il s’agit d’un dossier</translation>
    </message>
    <message>
        <source>a link is on its path</source>
        <translation>un lien se trouve sur son chemin</translation>
    </message>
    <message>
        <source>its name or path is too long</source>
        <translation>son nom ou son chemin est trop long</translation>
    </message>
    <message>
        <source>its data ended early: it was changed meanwhile, or the disk reported a fault</source>
        <translation>les données se sont terminées trop tôt, car elles ont été modifiées entre-temps ou le disque a signalé une erreur</translation>
    </message>
    <message>
        <source>it doesn’t exist</source>
        <translation>l’élément n’existe pas</translation>
    </message>
    <message>
        <source>the memory is used up</source>
        <translation>la mémoire est épuisée</translation>
    </message>
    <message>
        <source>the volume is out of space</source>
        <translation>le volume n’a plus d’espace libre</translation>
    </message>
    <message>
        <source>that takes Linux 5.6 or later, and no sandbox that hides openat2</source>
        <translation>cela requiert Linux 5.6 ou ultérieur et aucun bac à sable qui masque openat2</translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation>une partie de son chemin n’est pas un dossier</translation>
    </message>
    <message>
        <source>it is not empty</source>
        <translation>le dossier n’est pas vide</translation>
    </message>
    <message>
        <source>it or its folder is protected: immutable, append-only or sticky</source>
        <translation>l’élément ou son dossier est protégé – immuable, en ajout seul ou avec le bit «&#xa0;sticky&#xa0;»</translation>
    </message>
    <message>
        <source>the volume is read only</source>
        <translation>le volume est en lecture seule</translation>
    </message>
    <message>
        <source>it lies on another volume, which is mounted there</source>
        <translation>l’élément se trouve sur un autre volume, monté à cet endroit</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>le système a refusé</translation>
    </message>
</context>
<context>
    <name>Titles</name>
    <message>
        <source>Installing quillbarn</source>
        <translation>Installation de quillbarn</translation>
    </message>
    <message>
        <source>quillbarn could not be installed</source>
        <translation>quillbarn n’a pas pu être installé</translation>
    </message>
    <message>
        <source>Removing quillbarn</source>
        <translation>Suppression de quillbarn</translation>
    </message>
    <message>
        <source>quillbarn could not be removed</source>
        <translation>quillbarn n’a pas pu être supprimé</translation>
    </message>
    <message>
        <source>Ejecting the disk image</source>
        <translation>Éjection de l’image disque</translation>
    </message>
    <message>
        <source>Ejecting the disk image: waiting for the volume to be free</source>
        <translation>Éjection&#xa0;: en attente de la libération du volume</translation>
    </message>
    <message>
        <source>The disk image could not be ejected</source>
        <translation>L’image disque n’a pas pu être éjectée</translation>
    </message>
</context>
</TS>
