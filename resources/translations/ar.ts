<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Displays</name>
    <message>
        <source>plugin not found</source>
        <translation>تعذّر فتح النافذة بملحقة منصّة Qt «⁦%1⁩». ثبّت الملحقة، أو ألغِ ضبط QT_QPA_PLATFORM.</translation>
    </message>
    <message>
        <source>Wayland display not found</source>
        <translation>تعذّر فتح النافذة على شاشة Wayland «⁦%1⁩». تأكّد من أنّ WAYLAND_DISPLAY يشير إلى مُركِّب نوافذ (compositor) قيد التشغيل.</translation>
    </message>
    <message>
        <source>Wayland plugin not found</source>
        <translation>تعذّر فتح النافذة على شاشة Wayland «⁦%1⁩». ثبّت الحزمة qt6-wayland.</translation>
    </message>
    <message>
        <source>X display not found</source>
        <translation>تعذّر فتح النافذة على الشاشة «⁦%1⁩». تأكّد من أنّ DISPLAY يشير إلى خادم X قيد التشغيل.</translation>
    </message>
    <message>
        <source>no display</source>
        <translation>تعذّر فتح النافذة من دون شاشة. شغّل المثبّت في جلسة سطح مكتب، أو اضبط DISPLAY أو WAYLAND_DISPLAY.</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>out of memory</source>
        <translation>تعذّرت متابعة العملية. الذاكرة غير كافية.</translation>
    </message>
    <message>
        <source>internal error</source>
        <translation>تعذّرت متابعة العملية. خطأ داخلي: ⁨%1⁩</translation>
    </message>
    <message>
        <source>incomplete, install again</source>
        <translation>نسخة quillbarn في «⁦%1⁩» غير مكتملة. ثبّت quillbarn مرة أخرى.</translation>
    </message>
    <message>
        <source>incomplete, uninstall again</source>
        <translation>نسخة quillbarn في «⁦%1⁩» غير مكتملة. ألغِ تثبيت quillbarn مرة أخرى.</translation>
    </message>
    <message>
        <source>maybe incomplete</source>
        <translation>قد تكون نسخة quillbarn في «⁦%1⁩» غير مكتملة. شغّل المثبّت مرة أخرى.</translation>
    </message>
    <message>
        <source>symlink loop</source>
        <translation>تعذّر اتّباع الوصلة الرمزية «⁦%1⁩». الهدف «⁦%2/⁩» مجلد يحتوي على الوصلة الرمزية (حلقة).</translation>
    </message>
    <message>
        <source>too many symlinks</source>
        <translation>تعذّر اتّباع الوصلة الرمزية «⁦%1⁩». عدد كبير جدًا من الوصلات الرمزية يشير إلى المجلد «⁦%2/⁩».</translation>
    </message>
    <message>
        <source>source is the installed folder</source>
        <translation>تعذّر تثبيت المجلد «⁦%1⁩». المجلد هو نفسه المجلد المثبَّت «⁦%2⁩» الذي يُفرَّغ قبل النسخ. ثبّت من مجلد آخر.</translation>
    </message>
    <message>
        <source>application is a symlink</source>
        <translation>تعذّر تغيير التطبيق «⁦%1⁩». التطبيق وصلة رمزية إلى «⁦%2⁩». احذف الوصلة الرمزية، ثم شغّل المثبّت مرة أخرى.</translation>
    </message>
    <message>
        <source>symlink points outside</source>
        <translation>تعذّر تغيير التطبيق «⁦%1⁩». الوصلة الرمزية «⁦%2⁩» في التطبيق تشير إلى خارجه، إلى «⁦%3⁩». احذف الوصلة الرمزية، ثم شغّل المثبّت مرة أخرى.</translation>
    </message>
    <message>
        <source>dangling symlink exists</source>
        <translation>تعذّر تثبيت «⁦%1⁩». توجد وصلة رمزية معطوبة بالاسم نفسه. ألغِ تثبيت quillbarn، ثم ثبّته مرة أخرى.</translation>
    </message>
    <message>
        <source>names are equal</source>
        <translation>تعذّر تثبيت «⁦%1⁩». لا تميّز وحدة التخزين بين هذا الاسم و«⁦%2⁩».</translation>
    </message>
    <message>
        <source>operation not started</source>
        <translation>تعذّر بدء العملية.</translation>
    </message>
    <message>
        <source>folder is locked</source>
        <translation>تعذّر قفل المجلد «⁦%1⁩». برنامج آخر يقفل المجلد. انتظر حتى ينتهي البرنامج الآخر، ثم شغّل المثبّت مرة أخرى.</translation>
    </message>
    <message>
        <source>folder not opened</source>
        <translation>تعذّر فتح المجلد «⁦%1⁩».</translation>
    </message>
    <message>
        <source>folder not created</source>
        <translation>تعذّر إنشاء المجلد «⁦%1⁩».</translation>
    </message>
    <message>
        <source>item not copied</source>
        <translation>تعذّر نسخ «⁦%1⁩» إلى «⁦%2⁩».</translation>
    </message>
    <message>
        <source>item not removed</source>
        <translation>تعذّر حذف «⁦%1⁩».</translation>
    </message>
    <message>
        <source>changes not written</source>
        <translation>تعذّرت كتابة التغييرات في «⁦%1⁩» على القرص.</translation>
    </message>
    <message>
        <source>root can write</source>
        <translation>تقتصر إمكانية الكتابة في «⁦%1⁩» على المستخدم «⁦root⁩».</translation>
    </message>
    <message>
        <source>group can write</source>
        <translation>تقتصر إمكانية الكتابة في «⁦%1⁩» على المستخدم «⁦root⁩» وأعضاء المجموعة «⁦%3⁩».</translation>
    </message>
    <message>
        <source>owner can write</source>
        <translation>تقتصر إمكانية الكتابة في «⁦%1⁩» على المستخدمَين «⁦root⁩» و«⁦%2⁩».</translation>
    </message>
    <message>
        <source>owner and group can write</source>
        <translation>تقتصر إمكانية الكتابة في «⁦%1⁩» على المستخدمَين «⁦root⁩» و«⁦%2⁩» وأعضاء المجموعة «⁦%3⁩».</translation>
    </message>
    <message>
        <source>write permission required</source>
        <translation>شغّل المثبّت بحساب مستخدم لديه إذن الكتابة.</translation>
    </message>
    <message>
        <source>item is special</source>
        <translation>تعذّر نسخ «⁦%1⁩». المصدر جهاز أو أنبوب أو مقبس.</translation>
    </message>
    <message>
        <source>item not read</source>
        <translation>تعذّرت قراءة «⁦%1⁩».</translation>
    </message>
    <message>
        <source>two sentences</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>item not examined</source>
        <translation>تعذّر الحصول على معلومات عن «⁦%1⁩».</translation>
    </message>
    <message>
        <source>folder not read</source>
        <translation>تعذّرت قراءة المجلد «⁦%1⁩».</translation>
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
        <source>EACCES</source>
        <translation>ليس لديك الإذن اللازم (⁦%1⁩).</translation>
    </message>
    <message>
        <source>EAGAIN</source>
        <translation>أحد موارد النظام غير متاح مؤقتًا (⁦%1⁩). حاول مرة أخرى لاحقًا.</translation>
    </message>
    <message>
        <source>EBUSY</source>
        <translation>الملف أو المجلد قيد الاستخدام، أو هو نقطة وصل (⁦%1⁩).</translation>
    </message>
    <message>
        <source>EDQUOT</source>
        <translation>نفدت الحصة المخصّصة من مساحة القرص (⁦%1⁩). حرّر بعض المساحة.</translation>
    </message>
    <message>
        <source>EEXIST</source>
        <translation>يوجد عنصر بالاسم نفسه (⁦%1⁩).</translation>
    </message>
    <message>
        <source>EFBIG</source>
        <translation>الملف أكبر مما تسمح به وحدة التخزين أو حدّ حجم الملفات (⁦%1⁩).</translation>
    </message>
    <message>
        <source>EIO</source>
        <translation>حدث خطأ في القراءة أو الكتابة (⁦%1⁩). افحص القرص.</translation>
    </message>
    <message>
        <source>EISDIR</source>
        <translation>يوجد مجلد في مكان يلزم فيه ملف (⁦%1⁩).</translation>
    </message>
    <message>
        <source>ELOOP</source>
        <translation>في المسار حلقة من الوصلات الرمزية، أو وصلة رمزية لا يتبعها المثبّت (⁦%1⁩).</translation>
    </message>
    <message>
        <source>EMFILE</source>
        <translation>فتح المثبّت ملفات أكثر من المسموح به (⁦%1⁩).</translation>
    </message>
    <message>
        <source>ENAMETOOLONG</source>
        <translation>الاسم أو المسار طويل جدًا (⁦%1⁩).</translation>
    </message>
    <message>
        <source>ENFILE</source>
        <translation>عدد الملفات المفتوحة في النظام أكبر من المسموح به (⁦%1⁩). أغلق برامج أخرى.</translation>
    </message>
    <message>
        <source>ENODATA</source>
        <translation>تغيّر الملف أثناء النسخ، أو في القرص خطأ (⁦%1⁩).</translation>
    </message>
    <message>
        <source>ENOENT</source>
        <translation>العنصر أو أحد مجلدات المسار غير موجود (⁦%1⁩).</translation>
    </message>
    <message>
        <source>ENOMEM</source>
        <translation>الذاكرة غير كافية (⁦%1⁩). أغلق برامج أخرى.</translation>
    </message>
    <message>
        <source>ENOSPC</source>
        <translation>لم تبقَ في وحدة التخزين مساحة للبيانات أو لمزيد من الملفات (⁦%1⁩). حرّر بعض المساحة.</translation>
    </message>
    <message>
        <source>ENOSYS</source>
        <translation>لا يوفّر النظام أو البيئة المعزولة (sandbox) وظيفة مطلوبة (⁦%1⁩). يلزم Linux 5.6 أو أحدث واستدعاء النظام «⁦openat2⁩».</translation>
    </message>
    <message>
        <source>ENOTDIR</source>
        <translation>العنصر أو جزء من المسار ليس مجلدًا (⁦%1⁩).</translation>
    </message>
    <message>
        <source>ENOTEMPTY</source>
        <translation>المجلد ليس فارغًا (⁦%1⁩).</translation>
    </message>
    <message>
        <source>EOPNOTSUPP</source>
        <translation>لا تدعم وحدة التخزين هذه العملية (⁦%1⁩).</translation>
    </message>
    <message>
        <source>EPERM</source>
        <translation>لا يسمح النظام بهذه العملية (⁦%1⁩). الأسباب المحتملة: عنصر أو مجلد محميّ (بمنع التغيير، أو بقصر الكتابة على الإلحاق، أو بالبت اللاصق)، أو وحدة تخزين لا تدعم الوصلات الرمزية أو الصلبة، أو بيئة معزولة (sandbox).</translation>
    </message>
    <message>
        <source>EROFS</source>
        <translation>وحدة التخزين للقراءة فقط (⁦%1⁩).</translation>
    </message>
    <message>
        <source>ETXTBSY</source>
        <translation>الملف برنامج قيد التشغيل أو مساحة تبديل مستخدمة (⁦%1⁩). أغلق البرنامج.</translation>
    </message>
    <message>
        <source>EUCLEAN</source>
        <translation>نظام الملفات في وحدة التخزين تالف ويحتاج إلى إصلاح (⁦%1⁩).</translation>
    </message>
    <message>
        <source>EXDEV</source>
        <translation>في المسار نقطة وصل (⁦%1⁩). لا يتجاوز المثبّت حدود نظام الملفات.</translation>
    </message>
    <message>
        <source>other</source>
        <translation>أبلغ النظام عن الخطأ ⁦%1⁩.</translation>
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
        <source>Uninstalling quillbarn</source>
        <translation>يجري إلغاء تثبيت quillbarn</translation>
    </message>
    <message>
        <source>quillbarn could not be uninstalled</source>
        <translation>تعذّر إلغاء تثبيت quillbarn</translation>
    </message>
    <message>
        <source>Ejecting the disk image</source>
        <translation>يجري إخراج صورة القرص</translation>
    </message>
    <message>
        <source>Ejecting the disk image: trying again</source>
        <translation>يجري إخراج صورة القرص: محاولة جديدة</translation>
    </message>
    <message>
        <source>The disk image could not be ejected</source>
        <translation>تعذّر إخراج صورة القرص</translation>
    </message>
    <message>
        <source>quillbarn installer: invalid options</source>
        <translation>مثبّت quillbarn: خيارات غير صالحة</translation>
    </message>
</context>
</TS>
