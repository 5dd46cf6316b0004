<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AboutWnd</name>
    <message>
        <source>About Folioforge</source>
        <translation>حول Folioforge</translation>
    </message>
    <message>
        <source>Icon of Folioforge</source>
        <translation>أيقونة Folioforge</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>التراخيص</translation>
    </message>
    <message>
        <source>Folioforge is free software of Vesprin under the Apache License, Version 2.0.

It stands on the work of others, with thanks:
Qt 6, GNU Lesser General Public License 3
qpdf, Apache License 2.0
HarfBuzz, MIT licence
FreeType, FreeType License
fontconfig, MIT licence
libjpeg-turbo, IJG and BSD licences
LibTIFF, libtiff licence
giflib, MIT licence
OpenJPEG, BSD licence
OpenEXR, BSD licence
libwebp, BSD licence
libheif, GNU Lesser General Public License 3
libjxl, BSD licence
libdeflate, MIT licence
ICU, Unicode License
PDFium, BSD licence</source>
        <translation>Folioforge برنامج حر من Vesprin بموجب رخصة أباتشي، الإصدار 2.0.

وهو يقوم على أعمال آخرين، مع الشكر لهم:
Qt 6, GNU Lesser General Public License 3
qpdf, Apache License 2.0
HarfBuzz, MIT licence
FreeType, FreeType License
fontconfig, MIT licence
libjpeg-turbo, IJG and BSD licences
LibTIFF, libtiff licence
giflib, MIT licence
OpenJPEG, BSD licence
OpenEXR, BSD licence
libwebp, BSD licence
libheif, GNU Lesser General Public License 3
libjxl, BSD licence
libdeflate, MIT licence
ICU, Unicode License
PDFium, BSD licence</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار %1</translation>
    </message>
</context>
<context>
    <name>Checks</name>
    <message>
        <source>Click &quot;OK&quot; to select another folder.</source>
        <translation>انقر «موافق» لاختيار مجلد آخر.</translation>
    </message>
    <message>
        <source>The passwords can not be the same.</source>
        <translation>لا يمكن أن تكون كلمتا المرور متطابقتين.</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Please select an output folder to store the output documents.</source>
        <translation>يُرجى اختيار مجلد إخراج لحفظ المستندات الناتجة.</translation>
    </message>
    <message>
        <source>Selected output folder does not exist or is not writable.</source>
        <translation>مجلد الإخراج المحدد غير موجود أو لا يمكن الكتابة فيه.</translation>
    </message>
    <message>
        <source>Please input user password.</source>
        <translation>يُرجى إدخال كلمة مرور المستخدم.</translation>
    </message>
    <message>
        <source>Please input owner password.</source>
        <translation>يُرجى إدخال كلمة مرور المالك.</translation>
    </message>
    <message>
        <source>Please input output file name.</source>
        <translation>يُرجى إدخال اسم ملف الإخراج.</translation>
    </message>
    <message>
        <source>Selected output folder is not writable.</source>
        <translation>لا يمكن الكتابة في مجلد الإخراج المحدد.</translation>
    </message>
    <message>
        <source>File name already exists in output folder, please input another name.</source>
        <translation>اسم الملف موجود بالفعل في مجلد الإخراج، يُرجى إدخال اسم آخر.</translation>
    </message>
</context>
<context>
    <name>EntryCells</name>
    <message>
        <source>1 page</source>
        <translation>صفحة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n صفحة</numerusform>
            <numerusform>صفحة واحدة</numerusform>
            <numerusform>صفحتان</numerusform>
            <numerusform>%n صفحات</numerusform>
            <numerusform>%n صفحة</numerusform>
            <numerusform>%n صفحة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>Text files</source>
        <translation>ملفات نصية</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>صور</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>ملفات PDF</translation>
    </message>
    <message>
        <source>Text files, images and PDF files</source>
        <translation>ملفات نصية وصور وملفات PDF</translation>
    </message>
</context>
<context>
    <name>ListCommands</name>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Sort By Name</source>
        <translation>فرز حسب الاسم</translation>
    </message>
    <message>
        <source>Resort By Name</source>
        <translation>فرز حسب الاسم</translation>
    </message>
    <message>
        <source>Sort By Size</source>
        <translation>فرز حسب الحجم</translation>
    </message>
    <message>
        <source>Resort By Size</source>
        <translation>فرز حسب الحجم</translation>
    </message>
    <message>
        <source>Sort By Data Created</source>
        <translation>فرز حسب تاريخ الإنشاء</translation>
    </message>
    <message>
        <source>Sort By Data Modified</source>
        <translation>فرز حسب تاريخ التعديل</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>نقل لأسفل</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>ملف (&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>تحرير (&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>عرض (&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>مساعدة (&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>إضافة ملفات (&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>بدء (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إنهاء (&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>معاينة (&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>الدعم (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Product Page</source>
        <translation>صفحة المنتج (&amp;P)</translation>
    </message>
    <message>
        <source>Check for Update...</source>
        <translation>التحقق من وجود تحديث…</translation>
    </message>
    <message>
        <source>A&amp;bout Folioforge</source>
        <translation>حول Folioforge (&amp;B)</translation>
    </message>
</context>
<context>
    <name>MainWnd</name>
    <message>
        <source>Add files of any kind, at the end of the list</source>
        <translation>إضافة ملفات من أي نوع إلى نهاية القائمة</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>إضافة ملفات…</translation>
    </message>
    <message>
        <source>Add the text and image files of a folder; PDFs and folders in it are left out</source>
        <translation>إضافة الملفات النصية والصور من مجلد؛ تُترك ملفات PDF والمجلدات التي بداخله</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>إضافة مجلد…</translation>
    </message>
    <message>
        <source>Add images</source>
        <translation>إضافة صور</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Add text files</source>
        <translation>إضافة ملفات نصية</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>Add PDF files</source>
        <translation>إضافة ملفات PDF</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Remove the selected files from the list</source>
        <translation>إزالة الملفات المحددة من القائمة</translation>
    </message>
    <message>
        <source>Remove selected files</source>
        <translation>إزالة الملفات المحددة</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Remove all files from the list</source>
        <translation>إزالة كل الملفات من القائمة</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>مسح القائمة</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>The files to convert, in their order</source>
        <translation>الملفات المراد تحويلها بالترتيب</translation>
    </message>
    <message>
        <source>&amp;Output folder:</source>
        <translation>مجلد الإخراج (&amp;O):</translation>
    </message>
    <message>
        <source>The folder that receives the PDF documents</source>
        <translation>المجلد الذي تُحفظ فيه مستندات PDF</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>مجلد الإخراج</translation>
    </message>
    <message>
        <source>Choose another output folder</source>
        <translation>اختيار مجلد إخراج آخر</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>استعراض لاختيار مجلد الإخراج</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>استعراض…</translation>
    </message>
    <message>
        <source>Show the output folder in the file browser</source>
        <translation>عرض مجلد الإخراج في مدير الملفات</translation>
    </message>
    <message>
        <source>Open the output folder</source>
        <translation>فتح مجلد الإخراج</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Make one PDF of all files, in the order of the list</source>
        <translation>إنشاء ملف PDF واحد من كل الملفات بترتيب القائمة</translation>
    </message>
    <message>
        <source>Merge into one PDF</source>
        <translation>دمج في ملف PDF واحد</translation>
    </message>
    <message>
        <source>&amp;Merge into one PDF</source>
        <translation>دمج في ملف PDF واحد (&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>الاسم (&amp;N):</translation>
    </message>
    <message>
        <source>Name of the merged PDF; .pdf is added where it is missing</source>
        <translation>اسم ملف PDF المدمج؛ يُضاف ‎.pdf إن لم يكن موجودًا</translation>
    </message>
    <message>
        <source>Name of the merged PDF</source>
        <translation>الاسم لملف PDF المدمج</translation>
    </message>
    <message>
        <source>Make the PDF documents</source>
        <translation>إنشاء مستندات PDF</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>إنشاء</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>جارٍ التحويل…</translation>
    </message>
    <message>
        <source>How far the run is</source>
        <translation>مدى تقدم العملية</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>Show Options</source>
        <translation>إظهار الخيارات</translation>
    </message>
    <message>
        <source>Show the options panel</source>
        <translation>إظهار لوحة الخيارات</translation>
    </message>
    <message>
        <source>Show options</source>
        <translation>إظهار الخيارات</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>إظهار</translation>
    </message>
    <message>
        <source>Hide the options panel</source>
        <translation>إخفاء لوحة الخيارات</translation>
    </message>
    <message>
        <source>Hide options</source>
        <translation>إخفاء الخيارات</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>إخفاء</translation>
    </message>
    <message>
        <source>Document properties</source>
        <translation>خصائص المستند</translation>
    </message>
    <message>
        <source>T&amp;itle:</source>
        <translation>العنوان (&amp;I):</translation>
    </message>
    <message>
        <source>Title of the PDF documents</source>
        <translation>عنوان مستندات PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>المؤلف (&amp;A):</translation>
    </message>
    <message>
        <source>Author of the PDF documents</source>
        <translation>مؤلف مستندات PDF</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>المؤلف</translation>
    </message>
    <message>
        <source>Sub&amp;ject:</source>
        <translation>الموضوع (&amp;J):</translation>
    </message>
    <message>
        <source>Subject of the PDF documents</source>
        <translation>موضوع مستندات PDF</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>الموضوع</translation>
    </message>
    <message>
        <source>&amp;Keywords:</source>
        <translation>الكلمات المفتاحية (&amp;K):</translation>
    </message>
    <message>
        <source>Keywords of the PDF documents</source>
        <translation>الكلمات المفتاحية لمستندات PDF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>الكلمات المفتاحية</translation>
    </message>
    <message>
        <source>Page size and margins for images</source>
        <translation>حجم الصفحة والهوامش للصور</translation>
    </message>
    <message>
        <source>Image page settings</source>
        <translation>إعدادات صفحة الصور</translation>
    </message>
    <message>
        <source>Page size and margins for text files</source>
        <translation>حجم الصفحة والهوامش للملفات النصية</translation>
    </message>
    <message>
        <source>Text page settings</source>
        <translation>إعدادات صفحة النص</translation>
    </message>
    <message>
        <source>Passwords and rights</source>
        <translation>كلمات المرور والصلاحيات</translation>
    </message>
    <message>
        <source>Security settings</source>
        <translation>إعدادات الأمان</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>الأمان</translation>
    </message>
    <message>
        <source>Each page is as large as its image and the margins</source>
        <translation>كل صفحة بحجم صورتها مع الهوامش</translation>
    </message>
    <message>
        <source>Page follows the image</source>
        <translation>الصفحة بحجم الصورة</translation>
    </message>
    <message>
        <source>The image is scaled to fit and centred</source>
        <translation>تُحجَّم الصورة لتلائم الصفحة وتوضع في الوسط</translation>
    </message>
    <message>
        <source>Page of this size:</source>
        <translation>صفحة بهذا الحجم:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>العرض (&amp;W):</translation>
    </message>
    <message>
        <source>Custom page width, in points</source>
        <translation>عرض الصفحة المخصص بالنقاط</translation>
    </message>
    <message>
        <source>Custom page width</source>
        <translation>العرض المخصص للصفحة</translation>
    </message>
    <message>
        <source>Hei&amp;ght:</source>
        <translation>الارتفاع (&amp;G):</translation>
    </message>
    <message>
        <source>Custom page height, in points</source>
        <translation>ارتفاع الصفحة المخصص بالنقاط</translation>
    </message>
    <message>
        <source>Custom page height</source>
        <translation>الارتفاع المخصص للصفحة</translation>
    </message>
    <message>
        <source>Margins (points)</source>
        <translation>الهوامش (بالنقاط)</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>أيسر (&amp;L):</translation>
    </message>
    <message>
        <source>Left margin, in points</source>
        <translation>الهامش الأيسر بالنقاط</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>الهامش الأيسر</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>أيمن (&amp;R):</translation>
    </message>
    <message>
        <source>Right margin, in points</source>
        <translation>الهامش الأيمن بالنقاط</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>الهامش الأيمن</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>أعلى (&amp;T):</translation>
    </message>
    <message>
        <source>Top margin, in points</source>
        <translation>الهامش العلوي بالنقاط</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>هامش أعلى</translation>
    </message>
    <message>
        <source>&amp;Bottom:</source>
        <translation>أسفل (&amp;B):</translation>
    </message>
    <message>
        <source>Bottom margin, in points</source>
        <translation>الهامش السفلي بالنقاط</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>هامش أسفل</translation>
    </message>
    <message>
        <source>Pages of 842 × 1191 points</source>
        <translation>صفحات بحجم ⁦842 × 1191⁩ نقطة</translation>
    </message>
    <message>
        <source>A3, 842 × 1191 points</source>
        <translation>A3، ⁦842 × 1191⁩ نقطة</translation>
    </message>
    <message>
        <source>Pages of 595 × 842 points</source>
        <translation>صفحات بحجم ⁦595 × 842⁩ نقطة</translation>
    </message>
    <message>
        <source>A4, 595 × 842 points</source>
        <translation>A4، ⁦595 × 842⁩ نقطة</translation>
    </message>
    <message>
        <source>Pages of 420 × 595 points</source>
        <translation>صفحات بحجم ⁦420 × 595⁩ نقطة</translation>
    </message>
    <message>
        <source>A5, 420 × 595 points</source>
        <translation>A5، ⁦420 × 595⁩ نقطة</translation>
    </message>
    <message>
        <source>Pages of the size given below</source>
        <translation>صفحات بالحجم المحدد أدناه</translation>
    </message>
    <message>
        <source>Ask for this password when the PDF is opened</source>
        <translation>طلب كلمة المرور هذه عند فتح ملف PDF</translation>
    </message>
    <message>
        <source>User password, to open the PDF</source>
        <translation>كلمة مرور المستخدم لفتح الملف</translation>
    </message>
    <message>
        <source>&amp;User password, to open the PDF</source>
        <translation>كلمة مرور المستخدم لفتح الملف (&amp;U)</translation>
    </message>
    <message>
        <source>Password to open the PDF</source>
        <translation>كلمة مرور فتح ملف PDF</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>كلمة مرور المستخدم</translation>
    </message>
    <message>
        <source>Ask for this password when the rights of the PDF are changed</source>
        <translation>طلب كلمة المرور هذه عند تغيير صلاحيات ملف PDF</translation>
    </message>
    <message>
        <source>Owner password, to change rights</source>
        <translation>كلمة مرور المالك لتغيير الصلاحيات</translation>
    </message>
    <message>
        <source>O&amp;wner password, to change rights</source>
        <translation>كلمة مرور المالك لتغيير الصلاحيات (&amp;W)</translation>
    </message>
    <message>
        <source>Password to change the rights of the PDF</source>
        <translation>كلمة مرور تغيير صلاحيات ملف PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>كلمة مرور المالك</translation>
    </message>
    <message>
        <source>Tick to refuse printing to readers without the owner password</source>
        <translation>حدِّد لمنع الطباعة على القراء الذين لا يملكون كلمة مرور المالك</translation>
    </message>
    <message>
        <source>Refuse printing</source>
        <translation>منع الطباعة</translation>
    </message>
    <message>
        <source>Refuse &amp;printing</source>
        <translation>منع الطباعة (&amp;P)</translation>
    </message>
    <message>
        <source>Tick to refuse copying text and pictures to readers without the owner password</source>
        <translation>حدِّد لمنع نسخ النصوص والصور على القراء الذين لا يملكون كلمة مرور المالك</translation>
    </message>
    <message>
        <source>Refuse copying</source>
        <translation>منع النسخ</translation>
    </message>
    <message>
        <source>Refuse cop&amp;ying</source>
        <translation>منع النسخ (&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Compress:</source>
        <translation>الضغط (&amp;C):</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>الضغط</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Settings hold as soon as they are entered</source>
        <translation>تسري الإعدادات فور إدخالها</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>How strongly photos are reduced:
None: pictures stay as they are
150m, mild: photos at 150 pixels per inch
96m, medium: photos at 96 pixels per inch
72l, strong: photos at 72 pixels per inch</source>
        <translation>مقدار تصغير الصور الفوتوغرافية:
بلا: تبقى الصور كما هي
150m، خفيف: صور بدقة 150 بكسل في البوصة
96m، متوسط: صور بدقة 96 بكسل في البوصة
72l، قوي: صور بدقة 72 بكسل في البوصة</translation>
    </message>
    <message>
        <source>150m, mild: good for printing</source>
        <translation>150m، خفيف: جيد للطباعة</translation>
    </message>
    <message>
        <source>96m, medium: good for screens</source>
        <translation>96m، متوسط: جيد للشاشات</translation>
    </message>
    <message>
        <source>72l, strong: good for mail</source>
        <translation>72l، قوي: جيد للبريد</translation>
    </message>
    <message>
        <source>Break lines between words; keep blank lines, tabs and right-to-left text</source>
        <translation>كسر الأسطر بين الكلمات، مع إبقاء الأسطر الفارغة وعلامات الجدولة والنص من اليمين إلى اليسار</translation>
    </message>
    <message>
        <source>Readable layout</source>
        <translation>تخطيط مقروء</translation>
    </message>
    <message>
        <source>Rea&amp;dable layout</source>
        <translation>تخطيط مقروء (&amp;D)</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>Notice</source>
        <translation>تنبيه</translation>
    </message>
</context>
<context>
    <name>PageSetup</name>
    <message>
        <source>Invalid page margin value in text output setting.</source>
        <translation>قيمة هامش غير صالحة في إعدادات إخراج النص.</translation>
    </message>
    <message>
        <source>Invalid page margin value in image output setting.</source>
        <translation>قيمة هامش غير صالحة في إعدادات إخراج الصور.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page width, please modify your text output setting.</source>
        <translation>قيمة الهوامش أكبر من عرض الصفحة، يُرجى تعديل إعدادات إخراج النص.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page height, please modify your text output setting.</source>
        <translation>قيمة الهوامش أكبر من ارتفاع الصفحة، يُرجى تعديل إعدادات إخراج النص.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page width, please modify your image output setting.</source>
        <translation>قيمة الهوامش أكبر من عرض الصفحة، يُرجى تعديل إعدادات إخراج الصور.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page height, please modify your image output setting.</source>
        <translation>قيمة الهوامش أكبر من ارتفاع الصفحة، يُرجى تعديل إعدادات إخراج الصور.</translation>
    </message>
</context>
<context>
    <name>Password</name>
    <message>
        <source>The password contains half a character</source>
        <translation>تحتوي كلمة المرور على حرف غير مكتمل</translation>
    </message>
    <message>
        <source>The password mixes characters written from right to left with others in a way that passwords cannot have</source>
        <translation>تمزج كلمة المرور بين أحرف تُكتب من اليمين إلى اليسار وغيرها بطريقة لا تُقبل في كلمات المرور</translation>
    </message>
    <message>
        <source>The password contains a character that passwords cannot have</source>
        <translation>تحتوي كلمة المرور على حرف غير مسموح به في كلمات المرور</translation>
    </message>
    <message>
        <source>The password contains no visible character</source>
        <translation>لا تحتوي كلمة المرور على أي حرف مرئي</translation>
    </message>
    <message>
        <source>The password is longer than %1 bytes</source>
        <translation>كلمة المرور أطول من %1 بايت</translation>
    </message>
</context>
<context>
    <name>Run</name>
    <message>
        <source>A file name cannot hold a slash</source>
        <translation>لا يمكن أن يحتوي اسم الملف على شرطة مائلة</translation>
    </message>
    <message>
        <source>not compressed: %1</source>
        <translation>لم يُضغط: %1</translation>
    </message>
    <message>
        <source>Something went wrong with these PDF documents:</source>
        <translation>حدث خطأ في مستندات PDF التالية:</translation>
    </message>
</context>
<context>
    <name>SourceFiles</name>
    <message>
        <source>Fail to import following files. They are encrypted or not normal PDF files:</source>
        <translation>تعذّر استيراد الملفات التالية. إنها مشفّرة أو ليست ملفات PDF عادية:</translation>
    </message>
</context>
<context>
    <name>States</name>
    <message>
        <source>Waiting...</source>
        <translation>في الانتظار…</translation>
    </message>
    <message>
        <source>Converting...</source>
        <translation>جارٍ التحويل…</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>اكتمل</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>فشل</translation>
    </message>
</context>
<context>
    <name>folioforge::BusySheet</name>
    <message>
        <source>Creating PDF documents</source>
        <translation>جارٍ إنشاء مستندات PDF</translation>
    </message>
    <message>
        <source>Creating PDF documents…</source>
        <translation>جارٍ إنشاء مستندات PDF…</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>تقدم العملية</translation>
    </message>
</context>
<context>
    <name>folioforge::EmptyHint</name>
    <message>
        <source>Drop files here, or add them with the buttons above</source>
        <translation>أفلت الملفات هنا، أو أضِفها بالأزرار أعلاه</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>إضافة ملفات…</translation>
    </message>
    <message>
        <source>Add files of any kind</source>
        <translation>إضافة ملفات من أي نوع</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>إضافة مجلد…</translation>
    </message>
    <message>
        <source>Add the files of a folder</source>
        <translation>إضافة ملفات مجلد</translation>
    </message>
</context>
<context>
    <name>folioforge::FilesArray</name>
    <message>
        <source>No.</source>
        <translation>رقم</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>الوجهة</translation>
    </message>
</context>
<context>
    <name>folioforge::LengthHint</name>
    <message>
        <source>pt</source>
        <comment>points, behind a number</comment>
        <translation>pt</translation>
    </message>
    <message>
        <source>%1 pt = %2 in</source>
        <translation>%1 نقطة = %2 بوصة</translation>
    </message>
    <message>
        <source>%1 pt = %2 mm</source>
        <translation>%1 نقطة = %2 مم</translation>
    </message>
</context>
<context>
    <name>folioforge::ListCommands</name>
    <message>
        <source>Contextual Menu</source>
        <translation>قائمة السياق</translation>
    </message>
</context>
<context>
    <name>folioforge::ListHistory</name>
    <message>
        <source>Undo %1</source>
        <translation>تراجع: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>إعادة: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
</context>
<context>
    <name>folioforge::MainWndCtrl</name>
    <message>
        <source>Add Files</source>
        <translation>إضافة ملفات</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>إضافة مجلدات</translation>
    </message>
    <message>
        <source>Add Images</source>
        <translation>إضافة صور</translation>
    </message>
    <message>
        <source>Add Text Files</source>
        <translation>إضافة ملفات نصية</translation>
    </message>
    <message>
        <source>Add PDF Files</source>
        <translation>إضافة ملفات PDF</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>Hide Options</source>
        <translation>إخفاء الخيارات</translation>
    </message>
    <message>
        <source>Show Options</source>
        <translation>إظهار الخيارات</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>مجلد الإخراج</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>Output folder does not exist, please select another one.</source>
        <translation>مجلد الإخراج غير موجود، يُرجى اختيار مجلد آخر.</translation>
    </message>
    <message>
        <source>Select a file to see its pages</source>
        <translation>حدِّد ملفًا لرؤية صفحاته</translation>
    </message>
    <message>
        <source>%1 of %2 files added, compressing</source>
        <translation>أُضيف %1 من %2 من الملفات، جارٍ الضغط</translation>
    </message>
    <message>
        <source>%1 of %2 files added</source>
        <translation>أُضيف %1 من %2 من الملفات</translation>
    </message>
    <message>
        <source>%1 of %2 done, compressing</source>
        <translation>اكتمل %1 من %2، جارٍ الضغط</translation>
    </message>
    <message>
        <source>%1 of %2 done</source>
        <translation>اكتمل %1 من %2</translation>
    </message>
    <message>
        <source>Show the user password</source>
        <translation>إظهار كلمة مرور المستخدم</translation>
    </message>
    <message>
        <source>Show the owner password</source>
        <translation>إظهار كلمة مرور المالك</translation>
    </message>
</context>
<context>
    <name>folioforge::NoticeBox</name>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
</context>
<context>
    <name>folioforge::PageProcess</name>
    <message>
        <source>The PDF asks for a password</source>
        <translation>يطلب ملف PDF كلمة مرور</translation>
    </message>
    <message>
        <source>The PDF cannot be read</source>
        <translation>تتعذّر قراءة ملف PDF</translation>
    </message>
    <message>
        <source>The page cannot be shown</source>
        <translation>يتعذّر عرض الصفحة</translation>
    </message>
    <message>
        <source>The page takes too long to be shown</source>
        <translation>يستغرق عرض الصفحة وقتًا طويلًا</translation>
    </message>
</context>
<context>
    <name>folioforge::PasswordEye</name>
    <message>
        <source>Hide the password</source>
        <translation>إخفاء كلمة المرور</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>إظهار كلمة المرور</translation>
    </message>
</context>
<context>
    <name>folioforge::Preview</name>
    <message>
        <source>Drawing the page…</source>
        <translation>جارٍ رسم الصفحة…</translation>
    </message>
    <message>
        <source>The PDF is no longer there</source>
        <translation>لم يعد ملف PDF موجودًا</translation>
    </message>
</context>
<context>
    <name>folioforge::PreviewPanel</name>
    <message>
        <source>Page %1 of more than %2</source>
        <translation>الصفحة %1 من أكثر من %2</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>الصفحة %1 من %2</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Close the preview</source>
        <translation>إغلاق المعاينة</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>الصفحة السابقة</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>الصفحة التالية</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>page, file</comment>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>folioforge::RunAnswer</name>
    <message>
        <source>%1 made, 1 page, %2</source>
        <translation>أُنشئ %1، صفحة واحدة، %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 made, %n pages, %2</source>
        <translation>
            <numerusform>أُنشئ %1، %n صفحة، %2</numerusform>
            <numerusform>أُنشئ %1، صفحة واحدة، %2</numerusform>
            <numerusform>أُنشئ %1، صفحتان، %2</numerusform>
            <numerusform>أُنشئ %1، %n صفحات، %2</numerusform>
            <numerusform>أُنشئ %1، %n صفحة، %2</numerusform>
            <numerusform>أُنشئ %1، %n صفحة، %2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 PDF made</source>
        <translation>أُنشئ ملف PDF واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n PDFs made</source>
        <translation>
            <numerusform>لم يُنشأ أي ملف PDF</numerusform>
            <numerusform>أُنشئ ملف PDF واحد</numerusform>
            <numerusform>أُنشئ ملفا PDF</numerusform>
            <numerusform>أُنشئت %n ملفات PDF</numerusform>
            <numerusform>أُنشئ %n ملف PDF</numerusform>
            <numerusform>أُنشئ %n ملف PDF</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file could not be added</source>
        <translation>تعذّرت إضافة ملف واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be added</source>
        <translation>
            <numerusform>لم تتعذّر إضافة أي ملف</numerusform>
            <numerusform>تعذّرت إضافة ملف واحد</numerusform>
            <numerusform>تعذّرت إضافة ملفين</numerusform>
            <numerusform>تعذّرت إضافة %n ملفات</numerusform>
            <numerusform>تعذّرت إضافة %n ملفًا</numerusform>
            <numerusform>تعذّرت إضافة %n ملف</numerusform>
        </translation>
    </message>
    <message>
        <source>1 could not be</source>
        <comment>PDF, made</comment>
        <translation>تعذّر إنشاء واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n could not be</source>
        <comment>PDFs, made</comment>
        <translation>
            <numerusform>لم يتعذّر إنشاء أي منها</numerusform>
            <numerusform>تعذّر إنشاء واحد</numerusform>
            <numerusform>تعذّر إنشاء اثنين</numerusform>
            <numerusform>تعذّر إنشاء %n</numerusform>
            <numerusform>تعذّر إنشاء %n</numerusform>
            <numerusform>تعذّر إنشاء %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The PDF could not be made</source>
        <translation>تعذّر إنشاء ملف PDF</translation>
    </message>
    <message>
        <source>No PDF could be made</source>
        <translation>تعذّر إنشاء أي ملف PDF</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>what was made, what was not</comment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Open the PDF</source>
        <translation>فتح ملف PDF</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>إظهار في المجلد</translation>
    </message>
    <message>
        <source>Open the folder of the PDF documents</source>
        <translation>فتح مجلد مستندات PDF</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>إظهار</translation>
    </message>
    <message>
        <source>Select the files that are in no PDF</source>
        <translation>تحديد الملفات غير الموجودة في أي ملف PDF</translation>
    </message>
</context>
</TS>
