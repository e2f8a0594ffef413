<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Displays</name>
    <message>
        <source>plugin not found</source>
        <translation>Impossible d’ouvrir la fenêtre avec le greffon de plateforme Qt «&#xa0;%1&#xa0;». Installez le greffon ou supprimez la variable QT_QPA_PLATFORM.</translation>
    </message>
    <message>
        <source>Wayland display not found</source>
        <translation>Impossible d’ouvrir la fenêtre sur l’affichage Wayland «&#xa0;%1&#xa0;». Vérifiez que WAYLAND_DISPLAY désigne un compositeur en cours d’exécution.</translation>
    </message>
    <message>
        <source>Wayland plugin not found</source>
        <translation>Impossible d’ouvrir la fenêtre sur l’affichage Wayland «&#xa0;%1&#xa0;». Installez le paquet qt6-wayland.</translation>
    </message>
    <message>
        <source>X display not found</source>
        <translation>Impossible d’ouvrir la fenêtre sur l’affichage «&#xa0;%1&#xa0;». Vérifiez que DISPLAY désigne un serveur X en cours d’exécution.</translation>
    </message>
    <message>
        <source>no display</source>
        <translation>Impossible d’ouvrir la fenêtre sans affichage. Lancez l’installateur dans une session de bureau, ou définissez DISPLAY ou WAYLAND_DISPLAY.</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>out of memory</source>
        <translation>Impossible de poursuivre l’opération. La mémoire est insuffisante.</translation>
    </message>
    <message>
        <source>internal error</source>
        <translation>Impossible de poursuivre l’opération. Erreur interne&#xa0;: %1</translation>
    </message>
    <message>
        <source>incomplete, install again</source>
        <translation>La copie de quillbarn dans «&#xa0;%1&#xa0;» est incomplète. Installez quillbarn de nouveau.</translation>
    </message>
    <message>
        <source>incomplete, uninstall again</source>
        <translation>La copie de quillbarn dans «&#xa0;%1&#xa0;» est incomplète. Désinstallez quillbarn de nouveau.</translation>
    </message>
    <message>
        <source>maybe incomplete</source>
        <translation>La copie de quillbarn dans «&#xa0;%1&#xa0;» est peut-être incomplète. Relancez l’installateur.</translation>
    </message>
    <message>
        <source>symlink loop</source>
        <translation>Impossible de suivre le lien symbolique «&#xa0;%1&#xa0;». La cible «&#xa0;%2/&#xa0;» est un dossier qui contient le lien symbolique (boucle).</translation>
    </message>
    <message>
        <source>too many symlinks</source>
        <translation>Impossible de suivre le lien symbolique «&#xa0;%1&#xa0;». Trop de liens symboliques mènent au dossier «&#xa0;%2/&#xa0;».</translation>
    </message>
    <message>
        <source>source is the installed folder</source>
        <translation>Impossible d’installer le dossier «&#xa0;%1&#xa0;». Il s’agit du même dossier que le dossier installé «&#xa0;%2&#xa0;», qui est vidé avant la copie. Installez depuis un autre dossier.</translation>
    </message>
    <message>
        <source>application is a symlink</source>
        <translation>Impossible de modifier l’application «&#xa0;%1&#xa0;». L’application est un lien symbolique vers «&#xa0;%2&#xa0;». Supprimez le lien symbolique et relancez l’installateur.</translation>
    </message>
    <message>
        <source>symlink points outside</source>
        <translation>Impossible de modifier l’application «&#xa0;%1&#xa0;». Le lien symbolique «&#xa0;%2&#xa0;» de l’application pointe hors de celle-ci, vers «&#xa0;%3&#xa0;». Supprimez le lien symbolique et relancez l’installateur.</translation>
    </message>
    <message>
        <source>dangling symlink exists</source>
        <translation>Impossible d’installer «&#xa0;%1&#xa0;». Un lien symbolique rompu portant le même nom existe déjà. Désinstallez quillbarn, puis installez quillbarn de nouveau.</translation>
    </message>
    <message>
        <source>names are equal</source>
        <translation>Impossible d’installer «&#xa0;%1&#xa0;». Le volume ne distingue pas ce nom du nom «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>operation not started</source>
        <translation>Impossible de démarrer l’opération.</translation>
    </message>
    <message>
        <source>folder is locked</source>
        <translation>Impossible de verrouiller le dossier «&#xa0;%1&#xa0;». Un autre programme a verrouillé le dossier. Attendez que l’autre programme ait terminé, puis relancez l’installateur.</translation>
    </message>
    <message>
        <source>folder not opened</source>
        <translation>Impossible d’ouvrir le dossier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>folder not created</source>
        <translation>Impossible de créer le dossier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>item not copied</source>
        <translation>Impossible de copier «&#xa0;%1&#xa0;» vers «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>item not removed</source>
        <translation>Impossible de supprimer «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>changes not written</source>
        <translation>Impossible d’écrire sur le disque les modifications apportées à «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>root can write</source>
        <translation>Seul «&#xa0;root&#xa0;» peut écrire dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>group can write</source>
        <translation>Seuls «&#xa0;root&#xa0;» et les membres du groupe «&#xa0;%3&#xa0;» peuvent écrire dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>owner can write</source>
        <translation>Seuls «&#xa0;root&#xa0;» et «&#xa0;%2&#xa0;» peuvent écrire dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>owner and group can write</source>
        <translation>Seuls «&#xa0;root&#xa0;», «&#xa0;%2&#xa0;» et les membres du groupe «&#xa0;%3&#xa0;» peuvent écrire dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>write permission required</source>
        <translation>Lancez l’installateur avec un compte qui a la permission d’écriture.</translation>
    </message>
    <message>
        <source>item is special</source>
        <translation>Impossible de copier «&#xa0;%1&#xa0;». La source est un périphérique, un tube ou un socket.</translation>
    </message>
    <message>
        <source>item not read</source>
        <translation>Impossible de lire «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>two sentences</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>item not examined</source>
        <translation>Impossible d’obtenir des informations sur «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>folder not read</source>
        <translation>Impossible de lire le dossier «&#xa0;%1&#xa0;».</translation>
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
        <source>EACCES</source>
        <translation>Vous n’avez pas la permission nécessaire (%1).</translation>
    </message>
    <message>
        <source>EAGAIN</source>
        <translation>Une ressource du système est temporairement indisponible (%1). Réessayez plus tard.</translation>
    </message>
    <message>
        <source>EBUSY</source>
        <translation>Le fichier ou le dossier est en cours d’utilisation ou est un point de montage (%1).</translation>
    </message>
    <message>
        <source>EDQUOT</source>
        <translation>Le quota d’espace disque est épuisé (%1). Libérez de l’espace.</translation>
    </message>
    <message>
        <source>EEXIST</source>
        <translation>Un élément portant le même nom existe déjà (%1).</translation>
    </message>
    <message>
        <source>EFBIG</source>
        <translation>Le fichier est trop volumineux pour le volume ou pour la limite de taille des fichiers (%1).</translation>
    </message>
    <message>
        <source>EIO</source>
        <translation>Une erreur de lecture ou d’écriture s’est produite (%1). Vérifiez le disque.</translation>
    </message>
    <message>
        <source>EISDIR</source>
        <translation>Un dossier se trouve à la place d’un fichier (%1).</translation>
    </message>
    <message>
        <source>ELOOP</source>
        <translation>Le chemin contient une boucle de liens symboliques ou un lien symbolique que l’installateur ne suit pas (%1).</translation>
    </message>
    <message>
        <source>EMFILE</source>
        <translation>L’installateur a ouvert trop de fichiers (%1).</translation>
    </message>
    <message>
        <source>ENAMETOOLONG</source>
        <translation>Un nom ou un chemin est trop long (%1).</translation>
    </message>
    <message>
        <source>ENFILE</source>
        <translation>Trop de fichiers sont ouverts sur le système (%1). Fermez d’autres programmes.</translation>
    </message>
    <message>
        <source>ENODATA</source>
        <translation>Le fichier a changé pendant la copie ou le disque présente une erreur (%1).</translation>
    </message>
    <message>
        <source>ENOENT</source>
        <translation>L’élément, ou un dossier du chemin, n’existe pas (%1).</translation>
    </message>
    <message>
        <source>ENOMEM</source>
        <translation>La mémoire est insuffisante (%1). Fermez d’autres programmes.</translation>
    </message>
    <message>
        <source>ENOSPC</source>
        <translation>Le volume n’a plus de place pour des données ou d’autres fichiers (%1). Libérez de l’espace.</translation>
    </message>
    <message>
        <source>ENOSYS</source>
        <translation>Le système ou un bac à sable ne fournit pas une fonction requise (%1). Linux 5.6 ou ultérieur et l’appel système «&#xa0;openat2&#xa0;» sont nécessaires.</translation>
    </message>
    <message>
        <source>ENOTDIR</source>
        <translation>L’élément, ou une partie du chemin, n’est pas un dossier (%1).</translation>
    </message>
    <message>
        <source>ENOTEMPTY</source>
        <translation>Le dossier n’est pas vide (%1).</translation>
    </message>
    <message>
        <source>EOPNOTSUPP</source>
        <translation>Le volume ne prend pas en charge l’opération (%1).</translation>
    </message>
    <message>
        <source>EPERM</source>
        <translation>Le système n’autorise pas l’opération (%1). Causes possibles&#xa0;: un élément ou un dossier protégé (immuable, ajout seul ou bit «&#xa0;sticky&#xa0;»), un volume qui ne prend pas en charge les liens symboliques ou les liens physiques, ou un bac à sable.</translation>
    </message>
    <message>
        <source>EROFS</source>
        <translation>Le volume est en lecture seule (%1).</translation>
    </message>
    <message>
        <source>ETXTBSY</source>
        <translation>Le fichier est utilisé comme programme en cours d’exécution ou comme espace d’échange (%1). Fermez le programme.</translation>
    </message>
    <message>
        <source>EUCLEAN</source>
        <translation>Le système de fichiers du volume est endommagé et doit être réparé (%1).</translation>
    </message>
    <message>
        <source>EXDEV</source>
        <translation>Un point de montage se trouve sur le chemin (%1). L’installateur ne franchit pas les limites d’un système de fichiers.</translation>
    </message>
    <message>
        <source>other</source>
        <translation>Le système a signalé l’erreur %1.</translation>
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
        <translation>Impossible d’installer quillbarn</translation>
    </message>
    <message>
        <source>Uninstalling quillbarn</source>
        <translation>Désinstallation de quillbarn</translation>
    </message>
    <message>
        <source>quillbarn could not be uninstalled</source>
        <translation>Impossible de désinstaller quillbarn</translation>
    </message>
    <message>
        <source>Ejecting the disk image</source>
        <translation>Éjection de l’image disque</translation>
    </message>
    <message>
        <source>Ejecting the disk image: trying again</source>
        <translation>Éjection de l’image disque&#xa0;: nouvelle tentative</translation>
    </message>
    <message>
        <source>The disk image could not be ejected</source>
        <translation>Impossible d’éjecter l’image disque</translation>
    </message>
    <message>
        <source>quillbarn installer: invalid options</source>
        <translation>Installateur de quillbarn&#xa0;: options non valides</translation>
    </message>
</context>
</TS>
