<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Displays</name>
    <message>
        <source>plugin not found</source>
        <translation>No se pudo abrir la ventana con el complemento de plataforma de Qt «%1». Instale el complemento o elimine la variable QT_QPA_PLATFORM.</translation>
    </message>
    <message>
        <source>Wayland display not found</source>
        <translation>No se pudo abrir la ventana en la pantalla de Wayland «%1». Compruebe que WAYLAND_DISPLAY indica un compositor en ejecución.</translation>
    </message>
    <message>
        <source>Wayland plugin not found</source>
        <translation>No se pudo abrir la ventana en la pantalla de Wayland «%1». Instale el paquete qt6-wayland.</translation>
    </message>
    <message>
        <source>X display not found</source>
        <translation>No se pudo abrir la ventana en la pantalla «%1». Compruebe que DISPLAY indica un servidor X en ejecución.</translation>
    </message>
    <message>
        <source>no display</source>
        <translation>No se pudo abrir la ventana sin una pantalla. Inicie el instalador en una sesión de escritorio, o defina DISPLAY o WAYLAND_DISPLAY.</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>out of memory</source>
        <translation>No se pudo continuar la operación. No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>internal error</source>
        <translation>No se pudo continuar la operación. Error interno: %1</translation>
    </message>
    <message>
        <source>incomplete, install again</source>
        <translation>La copia de quillbarn en «%1» está incompleta. Vuelva a instalar quillbarn.</translation>
    </message>
    <message>
        <source>incomplete, uninstall again</source>
        <translation>La copia de quillbarn en «%1» está incompleta. Vuelva a desinstalar quillbarn.</translation>
    </message>
    <message>
        <source>maybe incomplete</source>
        <translation>Es posible que la copia de quillbarn en «%1» esté incompleta. Vuelva a iniciar el instalador.</translation>
    </message>
    <message>
        <source>symlink loop</source>
        <translation>No se pudo seguir el enlace simbólico «%1». El destino «%2/» es una carpeta que contiene el enlace simbólico (bucle).</translation>
    </message>
    <message>
        <source>too many symlinks</source>
        <translation>No se pudo seguir el enlace simbólico «%1». Demasiados enlaces simbólicos llevan a la carpeta «%2/».</translation>
    </message>
    <message>
        <source>source is the installed folder</source>
        <translation>No se pudo instalar la carpeta «%1». La carpeta es la misma que la carpeta instalada «%2», que se vacía antes de copiar los archivos. Instale desde otra carpeta.</translation>
    </message>
    <message>
        <source>application is a symlink</source>
        <translation>No se pudo modificar la aplicación «%1». La aplicación es un enlace simbólico a «%2». Elimine el enlace simbólico y vuelva a iniciar el instalador.</translation>
    </message>
    <message>
        <source>symlink points outside</source>
        <translation>No se pudo modificar la aplicación «%1». El enlace simbólico «%2» de la aplicación apunta fuera de ella, a «%3». Elimine el enlace simbólico y vuelva a iniciar el instalador.</translation>
    </message>
    <message>
        <source>dangling symlink exists</source>
        <translation>No se pudo instalar «%1». Ya existe un enlace simbólico roto con el mismo nombre. Desinstale quillbarn y después vuelva a instalar quillbarn.</translation>
    </message>
    <message>
        <source>names are equal</source>
        <translation>No se pudo instalar «%1». El volumen no distingue este nombre del nombre «%2».</translation>
    </message>
    <message>
        <source>operation not started</source>
        <translation>No se pudo iniciar la operación.</translation>
    </message>
    <message>
        <source>folder is locked</source>
        <translation>No se pudo bloquear la carpeta «%1». Otro programa ha bloqueado la carpeta. Espere a que termine el otro programa y vuelva a iniciar el instalador.</translation>
    </message>
    <message>
        <source>folder not opened</source>
        <translation>No se pudo abrir la carpeta «%1».</translation>
    </message>
    <message>
        <source>folder not created</source>
        <translation>No se pudo crear la carpeta «%1».</translation>
    </message>
    <message>
        <source>item not copied</source>
        <translation>No se pudo copiar «%1» a «%2».</translation>
    </message>
    <message>
        <source>item not removed</source>
        <translation>No se pudo eliminar «%1».</translation>
    </message>
    <message>
        <source>changes not written</source>
        <translation>No se pudieron escribir en el disco los cambios de «%1».</translation>
    </message>
    <message>
        <source>root can write</source>
        <translation>Solo «root» puede escribir en «%1».</translation>
    </message>
    <message>
        <source>group can write</source>
        <translation>Solo «root» y los miembros del grupo «%3» pueden escribir en «%1».</translation>
    </message>
    <message>
        <source>owner can write</source>
        <translation>Solo «root» y «%2» pueden escribir en «%1».</translation>
    </message>
    <message>
        <source>owner and group can write</source>
        <translation>Solo «root», «%2» y los miembros del grupo «%3» pueden escribir en «%1».</translation>
    </message>
    <message>
        <source>write permission required</source>
        <translation>Inicie el instalador con una cuenta que tenga permiso de escritura.</translation>
    </message>
    <message>
        <source>item is special</source>
        <translation>No se pudo copiar «%1». El origen es un dispositivo, una tubería o un «socket».</translation>
    </message>
    <message>
        <source>item not read</source>
        <translation>No se pudo leer «%1».</translation>
    </message>
    <message>
        <source>two sentences</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>item not examined</source>
        <translation>No se pudo obtener información sobre «%1».</translation>
    </message>
    <message>
        <source>folder not read</source>
        <translation>No se pudo leer la carpeta «%1».</translation>
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
        <source>EACCES</source>
        <translation>No tiene el permiso necesario (%1).</translation>
    </message>
    <message>
        <source>EAGAIN</source>
        <translation>Un recurso del sistema no está disponible temporalmente (%1). Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>EBUSY</source>
        <translation>El archivo o la carpeta se está usando o es un punto de montaje (%1).</translation>
    </message>
    <message>
        <source>EDQUOT</source>
        <translation>La cuota de disco está agotada (%1). Libere espacio.</translation>
    </message>
    <message>
        <source>EEXIST</source>
        <translation>Ya existe un elemento con el mismo nombre (%1).</translation>
    </message>
    <message>
        <source>EFBIG</source>
        <translation>El archivo es demasiado grande para el volumen o para el límite de tamaño de archivo (%1).</translation>
    </message>
    <message>
        <source>EIO</source>
        <translation>Se produjo un error de lectura o escritura (%1). Compruebe el disco.</translation>
    </message>
    <message>
        <source>EISDIR</source>
        <translation>Hay una carpeta en el lugar de un archivo (%1).</translation>
    </message>
    <message>
        <source>ELOOP</source>
        <translation>La ruta contiene un bucle de enlaces simbólicos o un enlace simbólico que el instalador no sigue (%1).</translation>
    </message>
    <message>
        <source>EMFILE</source>
        <translation>El instalador tiene demasiados archivos abiertos (%1).</translation>
    </message>
    <message>
        <source>ENAMETOOLONG</source>
        <translation>Un nombre o una ruta supera la longitud permitida (%1).</translation>
    </message>
    <message>
        <source>ENFILE</source>
        <translation>El sistema tiene demasiados archivos abiertos (%1). Cierre otros programas.</translation>
    </message>
    <message>
        <source>ENODATA</source>
        <translation>El archivo cambió durante la copia o el disco tiene un error (%1).</translation>
    </message>
    <message>
        <source>ENOENT</source>
        <translation>El elemento, o una carpeta de la ruta, no existe (%1).</translation>
    </message>
    <message>
        <source>ENOMEM</source>
        <translation>No hay memoria suficiente (%1). Cierre otros programas.</translation>
    </message>
    <message>
        <source>ENOSPC</source>
        <translation>No queda espacio en el volumen para datos o para más archivos (%1). Libere espacio.</translation>
    </message>
    <message>
        <source>ENOSYS</source>
        <translation>El sistema o un entorno aislado no proporciona una función necesaria (%1). Se necesitan Linux 5.6 o posterior y la llamada al sistema «openat2».</translation>
    </message>
    <message>
        <source>ENOTDIR</source>
        <translation>El elemento, o una parte de la ruta, no es una carpeta (%1).</translation>
    </message>
    <message>
        <source>ENOTEMPTY</source>
        <translation>La carpeta no está vacía (%1).</translation>
    </message>
    <message>
        <source>EOPNOTSUPP</source>
        <translation>El volumen no admite la operación (%1).</translation>
    </message>
    <message>
        <source>EPERM</source>
        <translation>El sistema no permite la operación (%1). Causas posibles: un elemento o una carpeta con protección (inmutable, solo anexar o bit «sticky»), un volumen que no admite enlaces simbólicos o enlaces duros, o un entorno aislado.</translation>
    </message>
    <message>
        <source>EROFS</source>
        <translation>El volumen es de solo lectura (%1).</translation>
    </message>
    <message>
        <source>ETXTBSY</source>
        <translation>El archivo se está usando como programa en ejecución o como espacio de intercambio (%1). Cierre el programa.</translation>
    </message>
    <message>
        <source>EUCLEAN</source>
        <translation>El sistema de archivos del volumen está dañado y debe repararse (%1).</translation>
    </message>
    <message>
        <source>EXDEV</source>
        <translation>Hay un punto de montaje en la ruta (%1). El instalador no cruza los límites de un sistema de archivos.</translation>
    </message>
    <message>
        <source>other</source>
        <translation>El sistema informó del error %1.</translation>
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
        <source>Uninstalling quillbarn</source>
        <translation>Desinstalando quillbarn</translation>
    </message>
    <message>
        <source>quillbarn could not be uninstalled</source>
        <translation>No se pudo desinstalar quillbarn</translation>
    </message>
    <message>
        <source>Ejecting the disk image</source>
        <translation>Expulsando la imagen de disco</translation>
    </message>
    <message>
        <source>Ejecting the disk image: trying again</source>
        <translation>Expulsando la imagen de disco: nuevo intento</translation>
    </message>
    <message>
        <source>The disk image could not be ejected</source>
        <translation>No se pudo expulsar la imagen de disco</translation>
    </message>
    <message>
        <source>quillbarn installer: invalid options</source>
        <translation>Instalador de quillbarn: opciones no válidas</translation>
    </message>
</context>
</TS>
