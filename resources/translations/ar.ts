<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Displays</name>
    <message>
        <source>The window can’t be opened by the plugin “%1”: install it, or unset QT_QPA_PLATFORM.</source>
        <translation>تعذّر فتح النافذة بالملحقة «⁦%1⁩»: ثبّتها، أو ألغِ ضبط QT_QPA_PLATFORM.</translation>
    </message>
    <message>
        <source>The window can’t be opened on the Wayland display “%1”: check that WAYLAND_DISPLAY names a running compositor.</source>
        <translation>تعذّر فتح النافذة على شاشة Wayland «⁦%1⁩»: تأكّد من أنّ WAYLAND_DISPLAY يشير إلى مؤلّف شاشة قيد التشغيل.</translation>
    </message>
    <message>
        <source>The window can’t be opened on the Wayland display “%1”: install the package qt6-wayland.</source>
        <translation>تعذّر فتح النافذة على شاشة Wayland «⁦%1⁩»: ثبّت الحزمة qt6-wayland.</translation>
    </message>
    <message>
        <source>The window can’t be opened on the display “%1”: check that DISPLAY names a running X server.</source>
        <translation>تعذّر فتح النافذة على الشاشة «⁦%1⁩»: تأكّد من أنّ DISPLAY يشير إلى خادوم X قيد التشغيل.</translation>
    </message>
    <message>
        <source>The window can’t be opened without a display: start it in a desktop session, or set DISPLAY.</source>
        <translation>تعذّر فتح النافذة من دون شاشة: شغّل البرنامج في جلسة سطح مكتب، أو اضبط DISPLAY.</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>The run couldn’t go on because the memory is used up.</source>
        <translation>تعذّرت متابعة العملية لأنّ الذاكرة نفدت.</translation>
    </message>
    <message>
        <source>The run couldn’t go on because of: %1</source>
        <translation>تعذّرت متابعة العملية. السبب: ⁨%1⁩</translation>
    </message>
    <message>
        <source>“%1” couldn’t be changed because it is a link, to “%2”.</source>
        <translation>تعذّر تغيير «⁦%1⁩» لأنّه وصلة إلى «⁦%2⁩».</translation>
    </message>
    <message>
        <source>“%1” couldn’t be installed because it is “%2”, which would be emptied first.</source>
        <translation>تعذّر تثبيت «⁦%1⁩» لأنّه هو نفسه «⁦%2⁩» الذي سيُفرَّغ أولًا.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be changed because the link “%2” leads out of it, to “%3”.</source>
        <translation>تعذّر تغيير «⁦%1⁩» لأنّ الوصلة «⁦%2⁩» تؤدي إلى خارجه، إلى «⁦%3⁩».</translation>
    </message>
    <message>
        <source>“%1” couldn’t be installed because a link that leads nowhere has its place. Uninstall first, which removes the link, too.</source>
        <translation>تعذّر تثبيت «⁦%1⁩» لأنّ مكانه تشغله وصلة لا تؤدي إلى شيء. أزِل التثبيت أولًا، فتُزال الوصلة أيضًا.</translation>
    </message>
    <message>
        <source>The link “%1” couldn’t be followed because it leads back to “%2/”, a folder that holds it.</source>
        <translation>تعذّر اتّباع الوصلة «⁦%1⁩» لأنّها تعود إلى «⁦%2/⁩»، وهو مجلد يحتويها.</translation>
    </message>
    <message>
        <source>The work couldn’t be started because %1 (%2).</source>
        <translation>تعذّر بدء العمل: %1 (⁨%2⁩).</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be opened because another program holds it locked.</source>
        <translation>تعذّر فتح المجلد «⁦%1⁩» لأنّ برنامجًا آخر يُبقيه مقفلًا.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be opened because %2 (%3).</source>
        <translation>تعذّر فتح المجلد «⁦%1⁩»: %2 (⁨%3⁩).</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created because %2 (%3).</source>
        <translation>تعذّر إنشاء المجلد «⁦%1⁩»: %2 (⁨%3⁩).</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied to “%2” because it is a device, a pipe or a socket.</source>
        <translation>تعذّر نسخ «⁦%1⁩» إلى «⁦%2⁩» لأنّه جهاز أو أنبوب أو مقبس.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied to “%2” because %3 (%4).</source>
        <translation>تعذّر نسخ «⁦%1⁩» إلى «⁦%2⁩»: %3 (⁨%4⁩).</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed because %2 (%3).</source>
        <translation>تعذّرت إزالة «⁦%1⁩»: %2 (⁨%3⁩).</translation>
    </message>
    <message>
        <source>What was changed in “%1” couldn’t be written to the disk because %2 (%3).</source>
        <translation>تعذّرت كتابة التغييرات في «⁦%1⁩» على القرص: %2 (⁨%3⁩).</translation>
    </message>
    <message>
        <source>%1 Only “root” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 لا تحقّ الكتابة في «⁦%2⁩» إلا لـ«root»: شغّل المثبّت بحساب يحقّ له ذلك.</translation>
    </message>
    <message>
        <source>%1 Only “root” and the group “%4” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 لا تحقّ الكتابة في «⁦%2⁩» إلا لـ«root» وللمجموعة «⁦%4⁩»: شغّل المثبّت بحساب يحقّ له ذلك.</translation>
    </message>
    <message>
        <source>%1 Only “root” and “%3” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 لا تحقّ الكتابة في «⁦%2⁩» إلا لـ«root» ولـ«⁦%3⁩»: شغّل المثبّت بحساب يحقّ له ذلك.</translation>
    </message>
    <message>
        <source>%1 Only “root” and “%3” and the group “%4” may write in “%2”: start the installer as one who may.</source>
        <translation>%1 لا تحقّ الكتابة في «⁦%2⁩» إلا لـ«root» ولـ«⁦%3⁩» وللمجموعة «⁦%4⁩»: شغّل المثبّت بحساب يحقّ له ذلك.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be read because %2 (%3).</source>
        <translation>تعذّرت قراءة «⁦%1⁩»: %2 (⁨%3⁩).</translation>
    </message>
    <message>
        <source>“%1” couldn’t be looked at because %2 (%3).</source>
        <translation>تعذّر جلب معلومات «⁦%1⁩»: %2 (⁨%3⁩).</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>quillbarn installer</source>
        <translation>مثبّت quillbarn</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدّم</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>الرسائل</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>أغلق</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>you don’t have permission to access it</source>
        <translation>ليس لديك إذن بالوصول إليه</translation>
    </message>
    <message>
        <source>it is in use, or another volume is mounted there</source>
        <translation>إنّه قيد الاستخدام، أو ثمة قرص آخر موصول هناك</translation>
    </message>
    <message>
        <source>your share of the volume’s space is used up</source>
        <translation>نفدت حصتك من مساحة القرص</translation>
    </message>
    <message>
        <source>an item with the same name already exists</source>
        <translation>يوجد عنصر بالاسم نفسه</translation>
    </message>
    <message>
        <source>it is larger than a file may be</source>
        <translation>حجمه أكبر من المسموح به للملفات</translation>
    </message>
    <message>
        <source>the disk reported a fault</source>
        <translation>أبلغ القرص عن عطل</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>إنّه مجلد</translation>
    </message>
    <message>
        <source>a link is on its path</source>
        <translation>في مساره وصلة</translation>
    </message>
    <message>
        <source>its name or path is too long</source>
        <translation>اسمه أو مساره طويل جدًا</translation>
    </message>
    <message>
        <source>its data ended early: it was changed meanwhile, or the disk reported a fault</source>
        <translation>انتهت بياناته قبل أوانها، إمّا لأنّها تغيّرت في الأثناء أو لأنّ القرص أبلغ عن عطل</translation>
    </message>
    <message>
        <source>it doesn’t exist</source>
        <translation>إنّه غير موجود</translation>
    </message>
    <message>
        <source>the memory is used up</source>
        <translation>نفدت الذاكرة</translation>
    </message>
    <message>
        <source>the volume is out of space</source>
        <translation>لم تبقَ مساحة فارغة على القرص</translation>
    </message>
    <message>
        <source>that takes Linux 5.6 or later, and no sandbox that hides openat2</source>
        <translation>يتطلّب ذلك Linux 5.6 أو أحدث، من دون صندوق رمل يخفي openat2</translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation>جزء من مساره ليس مجلدًا</translation>
    </message>
    <message>
        <source>it is not empty</source>
        <translation>إنّه ليس فارغًا</translation>
    </message>
    <message>
        <source>it or its folder is protected: immutable, append-only or sticky</source>
        <translation>إنّه محميّ أو مجلده محميّ، بمنع التغيير أو بقصره على الإلحاق أو بالبِت اللاصق</translation>
    </message>
    <message>
        <source>the volume is read only</source>
        <translation>القرص للقراءة فقط</translation>
    </message>
    <message>
        <source>it lies on another volume, which is mounted there</source>
        <translation>إنّه على قرص آخر موصول هناك</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>رفض النظام ذلك</translation>
    </message>
</context>
<context>
    <name>Titles</name>
    <message>
        <source>Installing quillbarn</source>
        <translation>يجري تثبيت quillbarn</translation>
    </message>
    <message>
        <source>quillbarn could not be installed</source>
        <translation>تعذّر تثبيت quillbarn</translation>
    </message>
    <message>
        <source>Removing quillbarn</source>
        <translation>تجري إزالة quillbarn</translation>
    </message>
    <message>
        <source>quillbarn could not be removed</source>
        <translation>تعذّرت إزالة quillbarn</translation>
    </message>
    <message>
        <source>Ejecting the disk image</source>
        <translation>يجري إخراج صورة القرص</translation>
    </message>
    <message>
        <source>Ejecting the disk image: waiting for the volume to be free</source>
        <translation>يجري إخراج صورة القرص: في انتظار تحرّر القرص</translation>
    </message>
    <message>
        <source>The disk image could not be ejected</source>
        <translation>تعذّر إخراج صورة القرص</translation>
    </message>
</context>
</TS>
