<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Displays</name>
    <message>
        <source>The window can’t be opened by the plugin “%1”: install it, or unset QT_QPA_PLATFORM.</source>
        <translation>No se puede abrir la ventana con el complemento «%1»: instálelo o elimine la variable QT_QPA_PLATFORM.</translation>
    </message>
    <message>
        <source>The window can’t be opened on the Wayland display “%1”: check that WAYLAND_DISPLAY names a running compositor.</source>
        <translation>No se puede abrir la ventana en la pantalla de Wayland «%1»: compruebe que WAYLAND_DISPLAY indica un compositor en ejecución.</translation>
    </message>
    <message>
        <source>The window can’t be opened on the Wayland display “%1”: install the package qt6-wayland.</source>
        <translation>No se puede abrir la ventana en la pantalla de Wayland «%1»: instale el paquete qt6-wayland.</translation>
    </message>
    <message>
        <source>The window can’t be opened on the display “%1”: check that DISPLAY names a running X server.</source>
        <translation>No se puede abrir la ventana en la pantalla «%1»: compruebe que DISPLAY indica un servidor X en ejecución.</translation>
    </message>
    <message>
        <source>The window can’t be opened without a display: start it in a desktop session, or set DISPLAY.</source>
        <translation>No se puede abrir la ventana sin una pantalla: inicie el programa en una sesión de escritorio o defina la variable DISPLAY.</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>The run couldn’t go on because the memory is used up.</source>
        <translation>No se pudo continuar porque se agotó la memoria.</translation>
    </message>
    <message>
        <source>The run couldn’t go on because of: %1</source>
        <translation>No se pudo continuar. Causa: %1</translation>
    </message>
    <message>
        <source>“%1” couldn’t be changed because it is a link, to “%2”.</source>
        <translation>No se pudo modificar «%1» porque es un enlace a «%2».</translation>
    </message>
    <message>
        <source>“%1” couldn’t be installed because it is “%2”, which would be emptied first.</source>
        <translation>No se pudo instalar «%1» porque es el mismo elemento que «%2», que se vaciaría antes.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be changed because the link “%2” leads out of it, to “%3”.</source>
        <translation>No se pudo modificar «%1» porque el enlace «%2» lleva fuera, a «%3».</translation>
    </message>
    <message>
        <source>“%1” couldn’t be installed because a link that leads nowhere has its place. Uninstall first, which removes the link, too.</source>
        <translation>No se pudo instalar «%1» porque ocupa su lugar un enlace que no lleva a ninguna parte. Desinstale primero, lo que también elimina el enlace.</translation>
    </message>
    <message>
        <source>The link “%1” couldn’t be followed because it leads back to “%2/”, a folder that holds it.</source>
        <translation>No se pudo seguir el enlace «%1» porque lleva de vuelta a «%2/», una carpeta que lo contiene.</translation>
    </message>
    <message>
        <source>The work couldn’t be started because %1 (%2).</source>
        <translation>No se pudo iniciar el trabajo: %1 (%2).</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be opened because another program holds it locked.</source>
        <translation>No se pudo abrir la carpeta «%1» porque otro programa la mantiene bloqueada.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be opened because %2 (%3).</source>
        <translation>No se pudo abrir la carpeta «%1»: %2 (%3).</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created because %2 (%3).</source>
        <translation>No se pudo crear la carpeta «%1»: %2 (%3).</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied to “%2” because it is a device, a pipe or a socket.</source>
        <translation>No se pudo copiar «%1» a «%2» porque es un dispositivo, una tubería o un «socket».</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied to “%2” because %3 (%4).</source>
        <translation>No se pudo copiar «%1» a «%2»: %3 (%4).</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed because %2 (%3).</source>
        <translation>No se pudo eliminar «%1»: %2 (%3).</translation>
    </message>
    <message>
        <source>What was changed in “%1” couldn’t be written to the disk because %2 (%3).</source>
        <translation>No se pudieron escribir en el disco los cambios hechos en «%1»: %2 (%3).</translation>
    </message>
    <message>
        <source>%1 Only “root” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 Solo «root» puede escribir en «%2»: inicie el instalador con una cuenta que pueda hacerlo.</translation>
    </message>
    <message>
        <source>%1 Only “root” and the group “%4” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 Solo «root» y el grupo «%4» pueden escribir en «%2»: inicie el instalador con una cuenta que pueda hacerlo.</translation>
    </message>
    <message>
        <source>%1 Only “root” and “%3” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 Solo «root» y «%3» pueden escribir en «%2»: inicie el instalador con una cuenta que pueda hacerlo.</translation>
    </message>
    <message>
        <source>%1 Only “root” and “%3” and the group “%4” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 Solo «root», «%3» y el grupo «%4» pueden escribir en «%2»: inicie el instalador con una cuenta que pueda hacerlo.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be read because %2 (%3).</source>
        <translation>No se pudo leer «%1»: %2 (%3).</translation>
    </message>
    <message>
        <source>“%1” couldn’t be looked at because %2 (%3).</source>
        <translation>No se pudo obtener información sobre «%1»: %2 (%3).</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>quillbarn installer</source>
        <translation>Instalador de quillbarn</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>you don’t have permission to access it</source>
        <translation>no tiene permiso de acceso</translation>
    </message>
    <message>
        <source>it is in use, or another volume is mounted there</source>
        <translation>el elemento está en uso o hay otro volumen montado ahí</translation>
    </message>
    <message>
        <source>your share of the volume’s space is used up</source>
        <translation>se agotó su parte del espacio del volumen</translation>
    </message>
    <message>
        <source>an item with the same name already exists</source>
        <translation>ya existe un elemento con el mismo nombre</translation>
    </message>
    <message>
        <source>it is larger than a file may be</source>
        <translation>el archivo supera el tamaño permitido</translation>
    </message>
    <message>
        <source>the disk reported a fault</source>
        <translation>el disco informó de un error</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>a link is on its path</source>
        <translation>hay un enlace en su ruta</translation>
    </message>
    <message>
        <source>its name or path is too long</source>
        <translation>su nombre o su ruta es demasiado largo</translation>
    </message>
    <message>
        <source>its data ended early: it was changed meanwhile, or the disk reported a fault</source>
        <translation>los datos terminaron antes de tiempo porque se modificaron entretanto o porque el disco informó de un error</translation>
    </message>
    <message>
        <source>it doesn’t exist</source>
        <translation>el elemento no existe</translation>
    </message>
    <message>
        <source>the memory is used up</source>
        <translation>se agotó la memoria</translation>
    </message>
    <message>
        <source>the volume is out of space</source>
        <translation>no queda espacio en el volumen</translation>
    </message>
    <message>
        <source>that takes Linux 5.6 or later, and no sandbox that hides openat2</source>
        <translation>se necesita Linux 5.6 o posterior y ningún entorno aislado que oculte openat2</translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation>una parte de su ruta no es una carpeta</translation>
    </message>
    <message>
        <source>it is not empty</source>
        <translation>la carpeta no está vacía</translation>
    </message>
    <message>
        <source>it or its folder is protected: immutable, append-only or sticky</source>
        <translation>el elemento o su carpeta está protegido —inmutable, solo para añadir o con el bit «sticky»—</translation>
    </message>
    <message>
        <source>the volume is read only</source>
        <translation>el volumen es de solo lectura</translation>
    </message>
    <message>
        <source>it lies on another volume, which is mounted there</source>
        <translation>el elemento está en otro volumen, montado ahí</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>el sistema lo rechazó</translation>
    </message>
</context>
<context>
    <name>Titles</name>
    <message>
        <source>Installing quillbarn</source>
        <translation>Instalando quillbarn</translation>
    </message>
    <message>
        <source>quillbarn could not be installed</source>
        <translation>No se pudo instalar quillbarn</translation>
    </message>
    <message>
        <source>Removing quillbarn</source>
        <translation>Eliminando quillbarn</translation>
    </message>
    <message>
        <source>quillbarn could not be removed</source>
        <translation>No se pudo eliminar quillbarn</translation>
    </message>
    <message>
        <source>Ejecting the disk image</source>
        <translation>Expulsando la imagen de disco</translation>
    </message>
    <message>
        <source>Ejecting the disk image: waiting for the volume to be free</source>
        <translation>Expulsando: esperando a que el volumen quede libre</translation>
    </message>
    <message>
        <source>The disk image could not be ejected</source>
        <translation>No se pudo expulsar la imagen de disco</translation>
    </message>
</context>
</TS>
