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
jemalloc, BSD licence
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
jemalloc, BSD licence
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
    <message>
        <source>A PDF for archives can not have passwords.</source>
        <translation>لا يمكن أن يكون لملف PDF المخصص للأرشفة كلمات مرور.</translation>
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
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
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
    <message>
        <source>Hold each page against its file before the PDF gets its name</source>
        <translation>مقارنة كل صفحة بملفها قبل أن يأخذ ملف PDF اسمه</translation>
    </message>
    <message>
        <source>Check every page</source>
        <translation>تدقيق كل صفحة</translation>
    </message>
    <message>
        <source>Make PDF/A documents, which look the same for decades</source>
        <translation>إنشاء مستندات PDF/A التي تحتفظ بمظهرها لعقود</translation>
    </message>
    <message>
        <source>Archive (PDF/A)</source>
        <translation>أرشيف (PDF/A)</translation>
    </message>
    <message>
        <source>Make PDF/UA documents, which screen readers can read aloud</source>
        <translation>إنشاء مستندات PDF/UA التي يمكن لقارئات الشاشة قراءتها بصوت عالٍ</translation>
    </message>
    <message>
        <source>Accessible (tagged)</source>
        <translation>سهل الوصول (موسوم)</translation>
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
    <name>Reasons</name>
    <message>
        <source>The conversion was stopped</source>
        <translation>أُوقف التحويل</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>تتعذّر قراءة %1: %2</translation>
    </message>
    <message>
        <source>%1 is a binary property list; only XML can be read</source>
        <translation>‏%1 قائمة خصائص ثنائية؛ لا يمكن قراءة غير XML</translation>
    </message>
    <message>
        <source>%1 is no valid property list</source>
        <translation>‏%1 ليست قائمة خصائص صالحة</translation>
    </message>
    <message>
        <source>The filter file %1 lacks a valid value for &quot;%2&quot;</source>
        <translation>يفتقر ملف المرشّح %1 إلى قيمة صالحة لـ«%2»</translation>
    </message>
    <message>
        <source>Not all of the PDF is tagged, as these are not: %1</source>
        <translation>ليس كل ملف PDF موسومًا، فهذه الملفات بلا وسوم: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 و%n غيرها</numerusform>
            <numerusform>%1 وواحد غيرها</numerusform>
            <numerusform>%1 واثنان غيرها</numerusform>
            <numerusform>%1 و%n غيرها</numerusform>
            <numerusform>%1 و%n غيرها</numerusform>
            <numerusform>%1 و%n غيرها</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no page to write</source>
        <translation>لا توجد صفحة لكتابتها</translation>
    </message>
    <message>
        <source>Its PDF is there and not older</source>
        <translation>ملف PDF الخاص به موجود وليس أقدم</translation>
    </message>
    <message>
        <source>Its PDF would take the place of an input, %1</source>
        <translation>سيحلّ ملف PDF الخاص به محل ملف إدخال، %1</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>الذاكرة غير كافية</translation>
    </message>
    <message>
        <source>, </source>
        <translation>، </translation>
    </message>
    <message>
        <source>It is not a recognised type</source>
        <translation>نوع الملف غير معروف</translation>
    </message>
    <message>
        <source>1 PDF</source>
        <translation>ملف PDF واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n PDFs</source>
        <translation>
            <numerusform>%n ملف PDF</numerusform>
            <numerusform>ملف PDF واحد</numerusform>
            <numerusform>ملفا PDF</numerusform>
            <numerusform>%n ملفات PDF</numerusform>
            <numerusform>%n ملف PDF</numerusform>
            <numerusform>%n ملف PDF</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>مجلد واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n مجلد</numerusform>
            <numerusform>مجلد واحد</numerusform>
            <numerusform>مجلدان</numerusform>
            <numerusform>%n مجلدات</numerusform>
            <numerusform>%n مجلدًا</numerusform>
            <numerusform>%n مجلد</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file of another type</source>
        <translation>ملف واحد من نوع آخر</translation>
    </message>
    <message numerus="yes">
        <source>%n files of other types</source>
        <translation>
            <numerusform>%n ملف من أنواع أخرى</numerusform>
            <numerusform>ملف واحد من نوع آخر</numerusform>
            <numerusform>ملفان من أنواع أخرى</numerusform>
            <numerusform>%n ملفات من أنواع أخرى</numerusform>
            <numerusform>%n ملفًا من أنواع أخرى</numerusform>
            <numerusform>%n ملف من أنواع أخرى</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>تُرك: %1</translation>
    </message>
    <message>
        <source>The folder cannot be listed: %1</source>
        <translation>يتعذّر سرد محتويات المجلد: %1</translation>
    </message>
    <message>
        <source>The document is encrypted</source>
        <translation>المستند مشفّر</translation>
    </message>
    <message>
        <source>The text is larger than 2 GB</source>
        <translation>حجم النص أكبر من 2 غ.ب</translation>
    </message>
    <message>
        <source>The text is read as %1, a guess</source>
        <translation>يُقرأ النص بترميز %1 تخمينًا</translation>
    </message>
    <message>
        <source>The text is not valid UTF-8; its page is left blank</source>
        <translation>النص ليس بترميز UTF-8 صالح؛ ستبقى صفحته فارغة</translation>
    </message>
    <message>
        <source>Cannot open the file</source>
        <translation>يتعذّر فتح الملف</translation>
    </message>
    <message>
        <source>Cannot create a file in %1</source>
        <translation>يتعذّر إنشاء ملف في %1</translation>
    </message>
    <message>
        <source>Cannot write a file in %1</source>
        <translation>تتعذّر كتابة ملف في %1</translation>
    </message>
    <message>
        <source>Cannot read back a file in %1</source>
        <translation>تتعذّر إعادة قراءة ملف في %1</translation>
    </message>
    <message>
        <source>Cannot flush a file in %1</source>
        <translation>يتعذّر تثبيت ملف على القرص في %1</translation>
    </message>
    <message>
        <source>Cannot name a file in %1</source>
        <translation>تتعذّر تسمية ملف في %1</translation>
    </message>
    <message>
        <source>The file system cannot flush files to the disk</source>
        <translation>لا يستطيع نظام الملفات تثبيت الملفات على القرص</translation>
    </message>
    <message>
        <source>Cannot read the file</source>
        <translation>تتعذّر قراءة الملف</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>The file ends too early</source>
        <translation>ينتهي الملف قبل أوانه</translation>
    </message>
    <message>
        <source>The file %1 was changed while it was being converted</source>
        <translation>تغيّر الملف %1 في أثناء تحويله</translation>
    </message>
    <message>
        <source>The file %1 ended too early</source>
        <translation>انتهى الملف %1 قبل أوانه</translation>
    </message>
    <message>
        <source>Cannot create a temporary file</source>
        <translation>يتعذّر إنشاء ملف مؤقت</translation>
    </message>
    <message>
        <source>Cannot write a temporary file</source>
        <translation>تتعذّر كتابة ملف مؤقت</translation>
    </message>
    <message>
        <source>Cannot read a temporary file</source>
        <translation>تتعذّر قراءة ملف مؤقت</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The picture is made for HDR screens, and a PDF shows its brightness otherwise</source>
        <translation>أُعدّت الصورة لشاشات HDR، ويعرض ملف PDF سطوعها على نحو مختلف</translation>
    </message>
    <message>
        <source>The compressed data is damaged</source>
        <translation>البيانات المضغوطة تالفة</translation>
    </message>
    <message>
        <source>The file is no bitmap</source>
        <translation>الملف ليس صورة نقطية</translation>
    </message>
    <message>
        <source>The bitmap is of an unknown kind</source>
        <translation>الصورة النقطية من نوع غير معروف</translation>
    </message>
    <message>
        <source>The bitmap has more colours than its pixels can name</source>
        <translation>ألوان الصورة النقطية أكثر مما تستطيع وحداتها تسميته</translation>
    </message>
    <message>
        <source>Pixels that the file leaves out have its first colour</source>
        <translation>وحدات البكسل التي لا يذكرها الملف تأخذ لونه الأول</translation>
    </message>
    <message>
        <source>The EXR file cannot be read: %1</source>
        <translation>تتعذّر قراءة ملف EXR: %1</translation>
    </message>
    <message>
        <source>The EXR file has no channels of colour or brightness</source>
        <translation>ليس في ملف EXR قنوات للون أو السطوع</translation>
    </message>
    <message>
        <source>The EXR file is damaged: none of its rows can be read</source>
        <translation>ملف EXR تالف: تتعذّر قراءة أي من صفوفه</translation>
    </message>
    <message>
        <source>The GIF file is damaged</source>
        <translation>ملف GIF تالف</translation>
    </message>
    <message>
        <source>The file holds no image</source>
        <translation>لا توجد صورة في الملف</translation>
    </message>
    <message>
        <source>The HEIC or AVIF file cannot be read: %1</source>
        <translation>تتعذّر قراءة ملف HEIC أو AVIF: %1</translation>
    </message>
    <message>
        <source>The system grants no thread, which HEIC and AVIF files take</source>
        <translation>لا يمنح النظام الخيط الذي تحتاج إليه ملفات HEIC وAVIF</translation>
    </message>
    <message>
        <source>The HEIC or AVIF file is damaged</source>
        <translation>ملف HEIC أو AVIF تالف</translation>
    </message>
    <message>
        <source>Its moving pictures are left out</source>
        <translation>تُركت صوره المتحركة</translation>
    </message>
    <message>
        <source>The icon file is cut off or damaged: there may be a larger picture in the part that is missing</source>
        <translation>ملف الأيقونة مبتور أو تالف: قد تكون في الجزء المفقود صورة أكبر</translation>
    </message>
    <message>
        <source>The icon&apos;s pixels are of an unknown kind</source>
        <translation>وحدات بكسل الأيقونة من نوع غير معروف</translation>
    </message>
    <message>
        <source>The icon&apos;s picture is of an unknown kind</source>
        <translation>صورة الأيقونة من نوع غير معروف</translation>
    </message>
    <message>
        <source>The icon file holds no picture that can be read</source>
        <translation>لا توجد في ملف الأيقونة صورة يمكن قراءتها</translation>
    </message>
    <message>
        <source>%1 of the icon&apos;s %2 pictures cannot be read</source>
        <translation>تتعذّر قراءة %1 من صور الأيقونة البالغ عددها %2</translation>
    </message>
    <message>
        <source>The JPEG file ends before its picture begins</source>
        <translation>ينتهي ملف JPEG قبل أن تبدأ صورته</translation>
    </message>
    <message>
        <source>The JPEG file has %1 colour components, which is no colour that a PDF can show</source>
        <translation>في ملف JPEG عدد %1 من مكونات اللون، وهو لون لا يستطيع ملف PDF عرضه</translation>
    </message>
    <message>
        <source>The JPEG file is of a kind that no PDF can hold (lossless, hierarchical or more than 8 bits)</source>
        <translation>ملف JPEG من نوع لا يتسع له أي ملف PDF (بلا فقد أو هرمي أو أكثر من 8 بت)</translation>
    </message>
    <message>
        <source>The JPEG 2000 file is damaged</source>
        <translation>ملف JPEG 2000 تالف</translation>
    </message>
    <message>
        <source>The JPEG 2000 file holds no picture</source>
        <translation>لا توجد صورة في ملف JPEG 2000</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its tiles could not be read</source>
        <translation>الصورة مبتورة: تعذّرت قراءة %1 % من مربعاتها</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its data could not be read</source>
        <translation>الصورة مبتورة: تعذّرت قراءة %1 % من بياناتها</translation>
    </message>
    <message>
        <source>The JPEG 2000 file is cut off</source>
        <translation>ملف JPEG 2000 مبتور</translation>
    </message>
    <message>
        <source>The JPEG file is damaged: none of its rows could be read</source>
        <translation>ملف JPEG تالف: تعذّرت قراءة أي من صفوفه</translation>
    </message>
    <message>
        <source>The JPEG XL file is damaged</source>
        <translation>ملف JPEG XL تالف</translation>
    </message>
    <message>
        <source>The JPEG XL file has %1 channels beside its colours, which are too many</source>
        <translation>في ملف JPEG XL عدد %1 من القنوات إلى جانب ألوانه، وهو عدد أكبر من اللازم</translation>
    </message>
    <message>
        <source>The JPEG XL file stores inks, which cannot be read</source>
        <translation>يخزّن ملف JPEG XL أحبارًا تتعذّر قراءتها</translation>
    </message>
    <message>
        <source>This program was built without the means to read %1 files</source>
        <translation>بُني هذا البرنامج دون ما يلزم لقراءة ملفات %1</translation>
    </message>
    <message>
        <source>This program was built without the means to decode JPEG 2000</source>
        <translation>بُني هذا البرنامج دون ما يلزم لفك ترميز JPEG 2000</translation>
    </message>
    <message>
        <source>The PNG file is damaged</source>
        <translation>ملف PNG تالف</translation>
    </message>
    <message>
        <source>The PNG file holds no picture</source>
        <translation>لا توجد صورة في ملف PNG</translation>
    </message>
    <message>
        <source>The PNG file has no palette</source>
        <translation>ليس لملف PNG لوحة ألوان</translation>
    </message>
    <message>
        <source>The Photoshop file&apos;s compression is unknown</source>
        <translation>طريقة ضغط ملف Photoshop غير معروفة</translation>
    </message>
    <message>
        <source>The Photoshop file holds its layers alone: save it with maximized compatibility, which adds the picture they make</source>
        <translation>لا يحتوي ملف Photoshop إلا على طبقاته: احفظه بأقصى توافق، فذلك يضيف الصورة التي تكوّنها</translation>
    </message>
    <message>
        <source>The Photoshop file has no palette</source>
        <translation>ليس لملف Photoshop لوحة ألوان</translation>
    </message>
    <message>
        <source>The Photoshop file&apos;s colour mode is unknown</source>
        <translation>نمط ألوان ملف Photoshop غير معروف</translation>
    </message>
    <message>
        <source>The Photoshop file is damaged</source>
        <translation>ملف Photoshop تالف</translation>
    </message>
    <message>
        <source>The file is no TGA image that can be read</source>
        <translation>الملف ليس صورة TGA يمكن قراءتها</translation>
    </message>
    <message>
        <source>The file names a further page that cannot be read</source>
        <translation>يذكر الملف صفحة أخرى تتعذّر قراءتها</translation>
    </message>
    <message>
        <source>its form is not supported</source>
        <translation>صيغته غير مدعومة</translation>
    </message>
    <message>
        <source>it has no pixels</source>
        <translation>ليس فيه وحدات بكسل</translation>
    </message>
    <message>
        <source>it is larger than any picture</source>
        <translation>هو أكبر من أي صورة</translation>
    </message>
    <message>
        <source>its directory is damaged</source>
        <translation>فهرسه تالف</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>هو مبتور</translation>
    </message>
    <message>
        <source>The TIFF file is damaged</source>
        <translation>ملف TIFF تالف</translation>
    </message>
    <message>
        <source>The TIFF file cannot be read: %1</source>
        <translation>تتعذّر قراءة ملف TIFF: %1</translation>
    </message>
    <message>
        <source>The TIFF file has no palette</source>
        <translation>ليس لملف TIFF لوحة ألوان</translation>
    </message>
    <message>
        <source>The TIFF file cannot be read: its compression is not supported</source>
        <translation>تتعذّر قراءة ملف TIFF: طريقة ضغطه غير مدعومة</translation>
    </message>
    <message>
        <source>The WebP file is damaged</source>
        <translation>ملف WebP تالف</translation>
    </message>
    <message>
        <source>The WebP file is too large</source>
        <translation>ملف WebP كبير جدًا</translation>
    </message>
    <message>
        <source>The animation is too large (%1 x %2 pixels)</source>
        <translation>الصورة المتحركة كبيرة جدًا (%1 x %2 بكسل)</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>الملف فارغ</translation>
    </message>
    <message>
        <source>The file is no image of a known format</source>
        <translation>الملف ليس صورة بتنسيق معروف</translation>
    </message>
    <message>
        <source>There is not enough memory for the image</source>
        <translation>الذاكرة غير كافية للصورة</translation>
    </message>
    <message>
        <source>The image has no pixels</source>
        <translation>ليس في الصورة وحدات بكسل</translation>
    </message>
    <message>
        <source>The image is too large (%1 x %2 pixels)</source>
        <translation>الصورة كبيرة جدًا (%1 x %2 بكسل)</translation>
    </message>
    <message>
        <source>1 further page is left out</source>
        <translation>تُركت صفحة أخرى واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n further pages are left out</source>
        <translation>
            <numerusform>تُركت %n صفحة أخرى</numerusform>
            <numerusform>تُركت صفحة أخرى واحدة</numerusform>
            <numerusform>تُركت صفحتان أخريان</numerusform>
            <numerusform>تُركت %n صفحات أخرى</numerusform>
            <numerusform>تُركت %n صفحة أخرى</numerusform>
            <numerusform>تُركت %n صفحة أخرى</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further frame is left out</source>
        <translation>تُرك إطار آخر واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n further frames are left out</source>
        <translation>
            <numerusform>تُرك %n إطار آخر</numerusform>
            <numerusform>تُرك إطار آخر واحد</numerusform>
            <numerusform>تُرك إطاران آخران</numerusform>
            <numerusform>تُركت %n إطارات أخرى</numerusform>
            <numerusform>تُرك %n إطارًا آخر</numerusform>
            <numerusform>تُرك %n إطار آخر</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further part is left out</source>
        <translation>تُرك جزء آخر واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n further parts are left out</source>
        <translation>
            <numerusform>تُرك %n جزء آخر</numerusform>
            <numerusform>تُرك جزء آخر واحد</numerusform>
            <numerusform>تُرك جزآن آخران</numerusform>
            <numerusform>تُركت %n أجزاء أخرى</numerusform>
            <numerusform>تُرك %n جزءًا آخر</numerusform>
            <numerusform>تُرك %n جزء آخر</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further picture is left out</source>
        <translation>تُركت صورة أخرى واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n further pictures are left out</source>
        <translation>
            <numerusform>تُركت %n صورة أخرى</numerusform>
            <numerusform>تُركت صورة أخرى واحدة</numerusform>
            <numerusform>تُركت صورتان أخريان</numerusform>
            <numerusform>تُركت %n صور أخرى</numerusform>
            <numerusform>تُركت %n صورة أخرى</numerusform>
            <numerusform>تُركت %n صورة أخرى</numerusform>
        </translation>
    </message>
    <message>
        <source>It is left out: %1</source>
        <translation>تُركت: %1</translation>
    </message>
    <message>
        <source>It and those behind it are left out, since they are too large together</source>
        <translation>تُركت هذه وما بعدها لأنها معًا كبيرة جدًا</translation>
    </message>
    <message>
        <source>Page %1: %2</source>
        <translation>الصفحة %1: %2</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its rows could not be read</source>
        <translation>الصورة مبتورة: تعذّرت قراءة %1 % من صفوفها</translation>
    </message>
    <message>
        <source>The picture is cut off: its finer details could not be read</source>
        <translation>الصورة مبتورة: تعذّرت قراءة تفاصيلها الدقيقة</translation>
    </message>
    <message>
        <source>The picture is cut off: parts of it could not be read</source>
        <translation>الصورة مبتورة: تعذّرت قراءة أجزاء منها</translation>
    </message>
    <message>
        <source>The picture is cut off: its transparency could not be read</source>
        <translation>الصورة مبتورة: تعذّرت قراءة شفافيتها</translation>
    </message>
    <message>
        <source>The picture is damaged: parts of it may look wrong</source>
        <translation>الصورة تالفة: قد تبدو أجزاء منها غير صحيحة</translation>
    </message>
    <message>
        <source>The file is too short for the image its header describes</source>
        <translation>الملف أقصر من الصورة التي تصفها ترويسته</translation>
    </message>
    <message>
        <source>The image&apos;s rows are damaged</source>
        <translation>صفوف الصورة تالفة</translation>
    </message>
    <message>
        <source>The image has fewer rows than its header says</source>
        <translation>صفوف الصورة أقل مما تذكره ترويستها</translation>
    </message>
    <message>
        <source>SOURCE_DATE_EPOCH is &quot;%1&quot;, not the seconds from 1970 to a date before the year 10000</source>
        <translation>قيمة SOURCE_DATE_EPOCH هي «%1»، وليست الثواني من 1970 إلى تاريخ يسبق عام 10000</translation>
    </message>
    <message>
        <source>1 structure tag</source>
        <translation>وسم بنية واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n structure tags</source>
        <translation>
            <numerusform>%n وسم بنية</numerusform>
            <numerusform>وسم بنية واحد</numerusform>
            <numerusform>وسما بنية</numerusform>
            <numerusform>%n وسوم بنية</numerusform>
            <numerusform>%n وسم بنية</numerusform>
            <numerusform>%n وسم بنية</numerusform>
        </translation>
    </message>
    <message>
        <source>1 attachment</source>
        <translation>مرفق واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n attachments</source>
        <translation>
            <numerusform>%n مرفق</numerusform>
            <numerusform>مرفق واحد</numerusform>
            <numerusform>مرفقان</numerusform>
            <numerusform>%n مرفقات</numerusform>
            <numerusform>%n مرفقًا</numerusform>
            <numerusform>%n مرفق</numerusform>
        </translation>
    </message>
    <message>
        <source>a portfolio</source>
        <translation>حافظة ملفات</translation>
    </message>
    <message>
        <source>an XFA form</source>
        <translation>نموذج XFA</translation>
    </message>
    <message>
        <source>document scripts</source>
        <translation>برامج نصية للمستند</translation>
    </message>
    <message>
        <source>page templates</source>
        <translation>قوالب صفحات</translation>
    </message>
    <message>
        <source>article threads</source>
        <translation>سلاسل مقالات</translation>
    </message>
    <message>
        <source>further layer settings</source>
        <translation>إعدادات أخرى للطبقات</translation>
    </message>
    <message>
        <source>a base address of links</source>
        <translation>عنوان أساس للروابط</translation>
    </message>
    <message>
        <source>usage rights</source>
        <translation>حقوق استخدام</translation>
    </message>
    <message>
        <source>the language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>metadata</source>
        <translation>بيانات وصفية</translation>
    </message>
    <message>
        <source>1 further document property</source>
        <translation>خاصية أخرى واحدة للمستند</translation>
    </message>
    <message numerus="yes">
        <source>%n further document properties</source>
        <translation>
            <numerusform>%n خاصية أخرى للمستند</numerusform>
            <numerusform>خاصية أخرى واحدة للمستند</numerusform>
            <numerusform>خاصيتان أخريان للمستند</numerusform>
            <numerusform>%n خصائص أخرى للمستند</numerusform>
            <numerusform>%n خاصية أخرى للمستند</numerusform>
            <numerusform>%n خاصية أخرى للمستند</numerusform>
        </translation>
    </message>
    <message>
        <source>output intents</source>
        <translation>مقاصد إخراج</translation>
    </message>
    <message>
        <source>1 signature</source>
        <translation>توقيع واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n signatures</source>
        <translation>
            <numerusform>%n توقيع</numerusform>
            <numerusform>توقيع واحد</numerusform>
            <numerusform>توقيعان</numerusform>
            <numerusform>%n توقيعات</numerusform>
            <numerusform>%n توقيعًا</numerusform>
            <numerusform>%n توقيع</numerusform>
        </translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>رابط واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n links</source>
        <translation>
            <numerusform>%n رابط</numerusform>
            <numerusform>رابط واحد</numerusform>
            <numerusform>رابطان</numerusform>
            <numerusform>%n روابط</numerusform>
            <numerusform>%n رابطًا</numerusform>
            <numerusform>%n رابط</numerusform>
        </translation>
    </message>
    <message>
        <source>1 annotation</source>
        <translation>تعليق واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n annotations</source>
        <translation>
            <numerusform>%n تعليق</numerusform>
            <numerusform>تعليق واحد</numerusform>
            <numerusform>تعليقان</numerusform>
            <numerusform>%n تعليقات</numerusform>
            <numerusform>%n تعليقًا</numerusform>
            <numerusform>%n تعليق</numerusform>
        </translation>
    </message>
    <message>
        <source>1 bookmark</source>
        <translation>إشارة مرجعية واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n bookmarks</source>
        <translation>
            <numerusform>%n إشارة مرجعية</numerusform>
            <numerusform>إشارة مرجعية واحدة</numerusform>
            <numerusform>إشارتان مرجعيتان</numerusform>
            <numerusform>%n إشارات مرجعية</numerusform>
            <numerusform>%n إشارة مرجعية</numerusform>
            <numerusform>%n إشارة مرجعية</numerusform>
        </translation>
    </message>
    <message>
        <source>page labels</source>
        <translation>تسميات صفحات</translation>
    </message>
    <message>
        <source>1 field</source>
        <translation>حقل واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n fields</source>
        <translation>
            <numerusform>%n حقل</numerusform>
            <numerusform>حقل واحد</numerusform>
            <numerusform>حقلان</numerusform>
            <numerusform>%n حقول</numerusform>
            <numerusform>%n حقلًا</numerusform>
            <numerusform>%n حقل</numerusform>
        </translation>
    </message>
    <message>
        <source>1 layer</source>
        <translation>طبقة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n layers</source>
        <translation>
            <numerusform>%n طبقة</numerusform>
            <numerusform>طبقة واحدة</numerusform>
            <numerusform>طبقتان</numerusform>
            <numerusform>%n طبقات</numerusform>
            <numerusform>%n طبقة</numerusform>
            <numerusform>%n طبقة</numerusform>
        </translation>
    </message>
    <message>
        <source>1 named destination</source>
        <translation>وجهة مسماة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n named destinations</source>
        <translation>
            <numerusform>%n وجهة مسماة</numerusform>
            <numerusform>وجهة مسماة واحدة</numerusform>
            <numerusform>وجهتان مسماتان</numerusform>
            <numerusform>%n وجهات مسماة</numerusform>
            <numerusform>%n وجهة مسماة</numerusform>
            <numerusform>%n وجهة مسماة</numerusform>
        </translation>
    </message>
    <message>
        <source>further names</source>
        <translation>أسماء أخرى</translation>
    </message>
    <message>
        <source>1 further catalog entry</source>
        <translation>مدخل آخر واحد في الكتالوج</translation>
    </message>
    <message numerus="yes">
        <source>%n further catalog entries</source>
        <translation>
            <numerusform>%n مدخل آخر في الكتالوج</numerusform>
            <numerusform>مدخل آخر واحد في الكتالوج</numerusform>
            <numerusform>مدخلان آخران في الكتالوج</numerusform>
            <numerusform>%n مداخل أخرى في الكتالوج</numerusform>
            <numerusform>%n مدخلًا آخر في الكتالوج</numerusform>
            <numerusform>%n مدخل آخر في الكتالوج</numerusform>
        </translation>
    </message>
    <message>
        <source>1 renamed name</source>
        <translation>اسم مُغيَّر واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n renamed names</source>
        <translation>
            <numerusform>%n اسم مُغيَّر</numerusform>
            <numerusform>اسم مُغيَّر واحد</numerusform>
            <numerusform>اسمان مُغيَّران</numerusform>
            <numerusform>%n أسماء مُغيَّرة</numerusform>
            <numerusform>%n اسمًا مُغيَّرًا</numerusform>
            <numerusform>%n اسم مُغيَّر</numerusform>
        </translation>
    </message>
    <message>
        <source>the font %1 cannot be embedded</source>
        <translation>يتعذّر تضمين الخط %1</translation>
    </message>
    <message>
        <source>It has 1 page, and &quot;%1&quot; names others</source>
        <translation>فيه صفحة واحدة، و«%1» يذكر غيرها</translation>
    </message>
    <message numerus="yes">
        <source>It has %n pages, and &quot;%1&quot; names others</source>
        <translation>
            <numerusform>فيه %n صفحة، و«%1» يذكر غيرها</numerusform>
            <numerusform>فيه صفحة واحدة، و«%1» يذكر غيرها</numerusform>
            <numerusform>فيه صفحتان، و«%1» يذكر غيرهما</numerusform>
            <numerusform>فيه %n صفحات، و«%1» يذكر غيرها</numerusform>
            <numerusform>فيه %n صفحة، و«%1» يذكر غيرها</numerusform>
            <numerusform>فيه %n صفحة، و«%1» يذكر غيرها</numerusform>
        </translation>
    </message>
    <message>
        <source>1 signature is left out, since it holds for the original file alone</source>
        <translation>تُرك توقيع واحد، لأنه لا يصح إلا للملف الأصلي</translation>
    </message>
    <message numerus="yes">
        <source>%n signatures are left out, since they hold for the original file alone</source>
        <translation>
            <numerusform>تُرك %n توقيع، لأنها لا تصح إلا للملف الأصلي</numerusform>
            <numerusform>تُرك توقيع واحد، لأنه لا يصح إلا للملف الأصلي</numerusform>
            <numerusform>تُرك توقيعان، لأنهما لا يصحان إلا للملف الأصلي</numerusform>
            <numerusform>تُركت %n توقيعات، لأنها لا تصح إلا للملف الأصلي</numerusform>
            <numerusform>تُرك %n توقيعًا، لأنها لا تصح إلا للملف الأصلي</numerusform>
            <numerusform>تُرك %n توقيع، لأنها لا تصح إلا للملف الأصلي</numerusform>
        </translation>
    </message>
    <message>
        <source>1 structure tag is damaged and left out</source>
        <translation>وسم بنية واحد تالف وتُرك</translation>
    </message>
    <message numerus="yes">
        <source>%n structure tags are damaged and left out</source>
        <translation>
            <numerusform>%n وسم بنية تالفة وتُركت</numerusform>
            <numerusform>وسم بنية واحد تالف وتُرك</numerusform>
            <numerusform>وسما بنية تالفان وتُركا</numerusform>
            <numerusform>%n وسوم بنية تالفة وتُركت</numerusform>
            <numerusform>%n وسم بنية تالفة وتُركت</numerusform>
            <numerusform>%n وسم بنية تالفة وتُركت</numerusform>
        </translation>
    </message>
    <message>
        <source>Not carried over, as it belongs to pages that are left out: %1</source>
        <translation>لم يُنقل لأنه يخص صفحات متروكة: %1</translation>
    </message>
    <message>
        <source>The document has no pages</source>
        <translation>ليس في المستند صفحات</translation>
    </message>
    <message>
        <source>1 form field is renamed, since another document has one of its name: &quot;%1&quot; is now &quot;%2&quot;; scripts are left as they are</source>
        <translation>أُعيدت تسمية حقل نموذج واحد، لأن في مستند آخر حقلًا بالاسم نفسه: «%1» صار «%2»؛ وتبقى البرامج النصية كما هي</translation>
    </message>
    <message numerus="yes">
        <source>%n form fields are renamed, since another document has fields of their names, such as &quot;%1&quot; is now &quot;%2&quot;; scripts are left as they are</source>
        <translation>
            <numerusform>أُعيدت تسمية %n حقل نموذج، لأن في مستند آخر حقولًا بالأسماء نفسها، مثل «%1» صار «%2»؛ وتبقى البرامج النصية كما هي</numerusform>
            <numerusform>أُعيدت تسمية حقل نموذج واحد، لأن في مستند آخر حقلًا بالاسم نفسه: «%1» صار «%2»؛ وتبقى البرامج النصية كما هي</numerusform>
            <numerusform>أُعيدت تسمية حقلي نموذج، لأن في مستند آخر حقلين بالاسمين نفسيهما، مثل «%1» صار «%2»؛ وتبقى البرامج النصية كما هي</numerusform>
            <numerusform>أُعيدت تسمية %n حقول نموذج، لأن في مستند آخر حقولًا بالأسماء نفسها، مثل «%1» صار «%2»؛ وتبقى البرامج النصية كما هي</numerusform>
            <numerusform>أُعيدت تسمية %n حقل نموذج، لأن في مستند آخر حقولًا بالأسماء نفسها، مثل «%1» صار «%2»؛ وتبقى البرامج النصية كما هي</numerusform>
            <numerusform>أُعيدت تسمية %n حقل نموذج، لأن في مستند آخر حقولًا بالأسماء نفسها، مثل «%1» صار «%2»؛ وتبقى البرامج النصية كما هي</numerusform>
        </translation>
    </message>
    <message>
        <source>Not carried over: %1</source>
        <translation>لم يُنقل: %1</translation>
    </message>
    <message>
        <source>it is a part of another one now</source>
        <translation>صار جزءًا من مستند آخر</translation>
    </message>
    <message>
        <source>it was damaged</source>
        <translation>كان تالفًا</translation>
    </message>
    <message>
        <source>some of its structure tags are damaged</source>
        <translation>بعض وسوم بنيته تالفة</translation>
    </message>
    <message>
        <source>that forbids encryption</source>
        <translation>هذا المعيار يمنع التشفير</translation>
    </message>
    <message>
        <source>that forbids the document information, which is written</source>
        <translation>هذا المعيار يمنع معلومات المستند التي تُكتب</translation>
    </message>
    <message>
        <source>that demands a title, and none is given</source>
        <translation>هذا المعيار يتطلب عنوانًا، ولم يُذكر أي عنوان</translation>
    </message>
    <message>
        <source>The document no longer says that it is %1, since %2</source>
        <translation>لم يعد المستند يذكر أنه %1: %2</translation>
    </message>
    <message>
        <source>Some of its bookmarks are missing in the document itself</source>
        <translation>بعض إشاراته المرجعية مفقودة في المستند نفسه</translation>
    </message>
    <message>
        <source>Some of its form fields are missing in the document itself</source>
        <translation>بعض حقول نماذجه مفقودة في المستند نفسه</translation>
    </message>
    <message>
        <source>The page tree contains itself</source>
        <translation>تحتوي شجرة الصفحات على نفسها</translation>
    </message>
    <message>
        <source>The document has no page tree</source>
        <translation>ليس للمستند شجرة صفحات</translation>
    </message>
    <message>
        <source>The document states %1 pages, and %2 were found</source>
        <translation>يذكر المستند أن عدد صفحاته %1، وعُثر على %2</translation>
    </message>
    <message>
        <source>The document does not state its pages, and %1 were found</source>
        <translation>لا يذكر المستند صفحاته، وعُثر على %1</translation>
    </message>
    <message>
        <source>%1 of %2 pages could be read, page %3 is the first that is missing</source>
        <translation>أمكنت قراءة %1 من %2 من الصفحات، والصفحة %3 هي أول صفحة مفقودة</translation>
    </message>
    <message>
        <source>%1 of %2 pages could be read</source>
        <translation>أمكنت قراءة %1 من %2 من الصفحات</translation>
    </message>
    <message>
        <source>What stands on page %1 is damaged and may lack something</source>
        <translation>ما في الصفحة %1 تالف وقد يكون ناقصًا</translation>
    </message>
    <message>
        <source>The document is damaged and was repaired: %1</source>
        <translation>المستند تالف وقد أُصلح: %1</translation>
    </message>
    <message numerus="yes">
        <source>The document is damaged and was repaired in %n places, the first: %1</source>
        <translation>
            <numerusform>المستند تالف وقد أُصلح في %n موضع، أولها: %1</numerusform>
            <numerusform>المستند تالف وقد أُصلح في موضع واحد: %1</numerusform>
            <numerusform>المستند تالف وقد أُصلح في موضعين، أولهما: %1</numerusform>
            <numerusform>المستند تالف وقد أُصلح في %n مواضع، أولها: %1</numerusform>
            <numerusform>المستند تالف وقد أُصلح في %n موضعًا، أولها: %1</numerusform>
            <numerusform>المستند تالف وقد أُصلح في %n موضع، أولها: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>This is not a PDF file</source>
        <translation>هذا ليس ملف PDF</translation>
    </message>
    <message>
        <source>The document is encrypted, and its permissions do not let its pages be taken; its owner password would</source>
        <translation>المستند مشفّر، وصلاحياته لا تسمح بأخذ صفحاته؛ كلمة مرور مالكه تسمح بذلك</translation>
    </message>
    <message>
        <source>The document is encrypted, and none of the passwords opens it</source>
        <translation>المستند مشفّر، ولا تفتحه أي من كلمات المرور</translation>
    </message>
    <message>
        <source>It is a dynamic XFA form, whose pages only a program for such forms makes</source>
        <translation>هذا نموذج XFA ديناميكي، لا ينشئ صفحاته إلا برنامج مخصص لمثل هذه النماذج</translation>
    </message>
    <message>
        <source>The document is too damaged to be repaired</source>
        <translation>المستند أشد تلفًا من أن يُصلح</translation>
    </message>
    <message>
        <source>The document is damaged: its trailer and its table of objects are missing</source>
        <translation>المستند تالف: خاتمته وجدول كائناته مفقودان</translation>
    </message>
    <message>
        <source>The document is damaged: it has no catalog</source>
        <translation>المستند تالف: ليس له كتالوج</translation>
    </message>
    <message>
        <source>page %1 (%2)</source>
        <translation>الصفحة %1 (%2)</translation>
    </message>
    <message>
        <source>Readers need not show pages beyond 3 to 14,400 units: %1</source>
        <translation>لا يلزم برامج القراءة عرض الصفحات التي تقع خارج 3 إلى 14,400 وحدة: %1</translation>
    </message>
    <message>
        <source>The document is protected, and the PDF made of it has the protection that was asked for instead</source>
        <translation>المستند محمي، وملف PDF المنشأ منه له بدلًا من ذلك الحماية المطلوبة</translation>
    </message>
    <message>
        <source>The document is protected, and the PDF made of it is not</source>
        <translation>المستند محمي، وملف PDF المنشأ منه غير محمي</translation>
    </message>
    <message>
        <source>its header is missing</source>
        <translation>ترويسته مفقودة</translation>
    </message>
    <message>
        <source>the length of a stream is wrong</source>
        <translation>طول أحد التدفقات غير صحيح</translation>
    </message>
    <message>
        <source>a stream is cut off</source>
        <translation>أحد التدفقات مبتور</translation>
    </message>
    <message>
        <source>its table of objects is damaged</source>
        <translation>جدول كائناته تالف</translation>
    </message>
    <message>
        <source>an object is not where the table of objects says</source>
        <translation>أحد الكائنات ليس حيث يذكر جدول الكائنات</translation>
    </message>
    <message>
        <source>it has no catalog</source>
        <translation>ليس له كتالوج</translation>
    </message>
    <message>
        <source>the data of a stream is damaged</source>
        <translation>بيانات أحد التدفقات تالفة</translation>
    </message>
    <message>
        <source>an object is not well formed</source>
        <translation>أحد الكائنات غير سليم البناء</translation>
    </message>
    <message>
        <source>%1 (object %2)</source>
        <translation>%1 (الكائن %2)</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>المستند تالف: %1</translation>
    </message>
    <message>
        <source>The document is damaged</source>
        <translation>المستند تالف</translation>
    </message>
    <message>
        <source>the font %1 cannot be read</source>
        <translation>تتعذّر قراءة الخط %1</translation>
    </message>
    <message>
        <source>The text has too many different forms of letters</source>
        <translation>في النص أشكال مختلفة للحروف أكثر من اللازم</translation>
    </message>
    <message>
        <source>private use</source>
        <translation>استخدام خاص</translation>
    </message>
    <message>
        <source>unassigned</source>
        <translation>غير معيّن</translation>
    </message>
    <message>
        <source>other</source>
        <translation>أخرى</translation>
    </message>
    <message>
        <source>1 character has no glyph in any font and is shown as a box: %1</source>
        <translation>حرف واحد لا رسم له في أي خط ويظهر مربعًا: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n characters have no glyph in any font and are shown as boxes: %1</source>
        <translation>
            <numerusform>%n حرف لا رسم لها في أي خط وتظهر مربعات: %1</numerusform>
            <numerusform>حرف واحد لا رسم له في أي خط ويظهر مربعًا: %1</numerusform>
            <numerusform>حرفان لا رسم لهما في أي خط ويظهران مربعين: %1</numerusform>
            <numerusform>%n أحرف لا رسم لها في أي خط وتظهر مربعات: %1</numerusform>
            <numerusform>%n حرفًا لا رسم لها في أي خط وتظهر مربعات: %1</numerusform>
            <numerusform>%n حرف لا رسم لها في أي خط وتظهر مربعات: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>1 character is split between two rows and shown as boxes</source>
        <translation>حرف واحد مقسوم بين سطرين ويظهر مربعين</translation>
    </message>
    <message numerus="yes">
        <source>%n characters are split between two rows and shown as boxes</source>
        <translation>
            <numerusform>%n حرف مقسومة بين سطرين وتظهر مربعات</numerusform>
            <numerusform>حرف واحد مقسوم بين سطرين ويظهر مربعين</numerusform>
            <numerusform>حرفان مقسومان بين سطرين ويظهران مربعات</numerusform>
            <numerusform>%n أحرف مقسومة بين سطرين وتظهر مربعات</numerusform>
            <numerusform>%n حرفًا مقسومة بين سطرين وتظهر مربعات</numerusform>
            <numerusform>%n حرف مقسومة بين سطرين وتظهر مربعات</numerusform>
        </translation>
    </message>
    <message>
        <source>The rules for the breaking of lines cannot be loaded: %1</source>
        <translation>يتعذّر تحميل قواعد كسر الأسطر: %1</translation>
    </message>
    <message>
        <source>The header or the footer has more rows than its margin</source>
        <translation>للترويسة أو التذييل أسطر أكثر مما يتسع له هامشه</translation>
    </message>
    <message>
        <source>The text is not valid %1</source>
        <translation>النص ليس بترميز %1 صالح</translation>
    </message>
    <message>
        <source>The bytes do not tell the encoding of the text</source>
        <translation>لا تدل البايتات على ترميز النص</translation>
    </message>
    <message>
        <source>There is no font to write text with</source>
        <translation>لا يوجد خط لكتابة النص</translation>
    </message>
    <message>
        <source>HEIC and AVIF files are read by libheif %1, which cannot be loaded: %2</source>
        <translation>تُقرأ ملفات HEIC وAVIF بمكتبة libheif %1 التي يتعذّر تحميلها: %2</translation>
    </message>
    <message>
        <source>This program was built without the means to read HEIC and AVIF files</source>
        <translation>بُني هذا البرنامج دون ما يلزم لقراءة ملفات HEIC وAVIF</translation>
    </message>
    <message>
        <source>its colours are of a kind that only JPEG 2000 knows</source>
        <translation>ألوانها من نوع لا يعرفه إلا JPEG 2000</translation>
    </message>
    <message>
        <source>The picture is partly transparent, and is laid on white</source>
        <translation>الصورة شفافة جزئيًا، وتوضع على خلفية بيضاء</translation>
    </message>
    <message>
        <source>The picture has 16 bits a colour, and is kept with 8</source>
        <translation>للصورة 16 بتًا لكل لون، وتُحفظ بـ 8</translation>
    </message>
    <message>
        <source>its colour profile is of version %1</source>
        <translation>ملف تعريف ألوانها من الإصدار %1</translation>
    </message>
    <message>
        <source>it does not say that it is PDF/A</source>
        <translation>لا يذكر أنه PDF/A</translation>
    </message>
    <message>
        <source>it says that it is %1, not %2</source>
        <translation>يذكر أنه %1، لا %2</translation>
    </message>
    <message>
        <source>It cannot go into a document that is %1, since %2</source>
        <translation>لا يمكن إدراجه في مستند من نوع %1: %2</translation>
    </message>
    <message>
        <source>The PDF does not say that it is %1, since %2</source>
        <translation>لا يذكر ملف PDF أنه %1: %2</translation>
    </message>
    <message>
        <source>its colours are inks without a profile, and none is given</source>
        <translation>ألوانها أحبار بلا ملف تعريف، ولم يُعطَ أي ملف</translation>
    </message>
    <message>
        <source>a page has %1 x %2 units, beyond %3 to %4</source>
        <translation>قياس إحدى الصفحات %1 × %2 وحدة، خارج المدى %3 إلى %4</translation>
    </message>
    <message>
        <source>it is protected, which the standard forbids</source>
        <translation>هو محمي، والمعيار يمنع ذلك</translation>
    </message>
    <message>
        <source>its colours are meant for another kind of device than those of the documents before it</source>
        <translation>ألوانه معدّة لنوع من الأجهزة غير نوع المستندات التي قبله</translation>
    </message>
    <message>
        <source>The PDF says that it is %1 because this document says so; whether that is true is not checked</source>
        <translation>يذكر ملف PDF أنه %1 لأن هذا المستند يذكر ذلك؛ ولا يُتحقق من صحة ذلك</translation>
    </message>
    <message>
        <source>Its colours without a profile are shown as those of the documents before it</source>
        <translation>ألوانه التي بلا ملف تعريف تُعرض كألوان المستندات التي قبله</translation>
    </message>
    <message>
        <source>A document for archives cannot be encrypted</source>
        <translation>لا يمكن تشفير مستند مخصص للأرشفة</translation>
    </message>
    <message>
        <source>The file has changed</source>
        <translation>تغيّر الملف</translation>
    </message>
    <message>
        <source>Not every page of the PDF is its source</source>
        <translation>ليست كل صفحات ملف PDF مطابقة لمصادرها</translation>
    </message>
    <message>
        <source>All of it is in the PDF, but laid out otherwise</source>
        <translation>كل محتواه موجود في ملف PDF لكن بتنسيق آخر</translation>
    </message>
    <message>
        <source>The PDF has %1 pages instead of %2</source>
        <translation>عدد صفحات ملف PDF هو %1 بدلاً من %2</translation>
    </message>
    <message>
        <source>Page %1 of the smaller PDF is not that of the PDF: %2</source>
        <translation>الصفحة %1 من ملف PDF المصغَّر ليست كما في ملف PDF: %2</translation>
    </message>
    <message>
        <source>The PDF is damaged: %1</source>
        <translation>ملف PDF تالف: %1</translation>
    </message>
    <message>
        <source>The PDF has fewer pages than the files</source>
        <translation>صفحات ملف PDF أقل من صفحات الملفات</translation>
    </message>
    <message>
        <source>Readers would draw the form fields of the PDF otherwise</source>
        <translation>ستعرض برامج القراءة حقول النماذج في ملف PDF بشكل آخر</translation>
    </message>
    <message>
        <source>it is no page of the source</source>
        <translation>ليست صفحة من المصدر</translation>
    </message>
    <message>
        <source>a font is damaged</source>
        <translation>أحد الخطوط تالف</translation>
    </message>
    <message>
        <source>it is of none of the files</source>
        <translation>ليست من أيٍّ من الملفات</translation>
    </message>
    <message>
        <source>it has no picture, or more than one</source>
        <translation>لا صورة فيها أو فيها أكثر من صورة</translation>
    </message>
    <message>
        <source>its picture is turned otherwise</source>
        <translation>صورتها مدارة بشكل آخر</translation>
    </message>
    <message>
        <source>its characters are not those of the text</source>
        <translation>محارفها ليست محارف النص</translation>
    </message>
    <message>
        <source>the text goes on and the PDF does not</source>
        <translation>النص يستمر وملف PDF لا يستمر</translation>
    </message>
    <message>
        <source>its contents are not those of the source</source>
        <translation>محتواها ليس محتوى المصدر</translation>
    </message>
    <message>
        <source>its fonts or pictures are not those of the source</source>
        <translation>خطوطها أو صورها ليست كما في المصدر</translation>
    </message>
    <message>
        <source>its links, notes or fields are not those of the source</source>
        <translation>روابطها أو ملاحظاتها أو حقولها ليست كما في المصدر</translation>
    </message>
    <message>
        <source>its size or turn is not that of the source</source>
        <translation>مقاسها أو دورانها ليس كما في المصدر</translation>
    </message>
    <message>
        <source>%1 is not as in the source</source>
        <translation>%1 ليس كما في المصدر</translation>
    </message>
    <message>
        <source>the bytes of its picture are not those of the file</source>
        <translation>بايتات صورتها ليست بايتات الملف</translation>
    </message>
    <message>
        <source>the pixels of its picture are not those of the file</source>
        <translation>بكسلات صورتها ليست بكسلات الملف</translation>
    </message>
    <message>
        <source>its picture has another size</source>
        <translation>مقاس صورتها مختلف</translation>
    </message>
    <message>
        <source>its picture would be read otherwise</source>
        <translation>ستُقرأ صورتها بشكل آخر</translation>
    </message>
    <message>
        <source>the opacity of its picture is another</source>
        <translation>عتامة صورتها مختلفة</translation>
    </message>
    <message>
        <source>its picture stands elsewhere</source>
        <translation>صورتها في موضع آخر</translation>
    </message>
    <message>
        <source>The PDF on the disk is not what was written</source>
        <translation>ملف PDF على القرص ليس ما كُتب</translation>
    </message>
    <message>
        <source>Page %1 of the PDF is not its source: %2</source>
        <translation>الصفحة %1 من ملف PDF لا تطابق مصدرها: %2</translation>
    </message>
    <message>
        <source>the contents of a page cannot be read</source>
        <translation>لا يمكن قراءة محتوى إحدى الصفحات</translation>
    </message>
    <message>
        <source>its text stands elsewhere</source>
        <translation>نصها في موضع آخر</translation>
    </message>
    <message>
        <source>its header or footer is another</source>
        <translation>ترويستها أو تذييلها مختلف</translation>
    </message>
    <message>
        <source>it shows what is not in the text</source>
        <translation>تعرض ما ليس في النص</translation>
    </message>
    <message>
        <source>it has another size</source>
        <translation>مقاسها مختلف</translation>
    </message>
    <message>
        <source>it has notes that nobody made</source>
        <translation>فيها ملاحظات لم يضعها أحد</translation>
    </message>
    <message>
        <source>it shows more than the picture</source>
        <translation>تعرض أكثر من الصورة</translation>
    </message>
    <message>
        <source>No description of the picture is given; its file&apos;s name stands for it</source>
        <translation>لا يوجد وصف للصورة؛ يحلّ اسم ملفها محلّه</translation>
    </message>
    <message>
        <source>It has no structure tags, which PDF/UA asks for</source>
        <translation>ليس فيه وسوم البنية التي يتطلبها PDF/UA</translation>
    </message>
    <message>
        <source>Whether its tags are what PDF/UA asks for is not looked at</source>
        <translation>لا يُفحص ما إذا كانت وسومه كما يتطلبها PDF/UA</translation>
    </message>
    <message>
        <source>A property of the document is longer than %1 allows</source>
        <translation>إحدى خصائص المستند أطول مما يسمح به %1</translation>
    </message>
    <message>
        <source>The document is too large for PDF/A</source>
        <translation>المستند كبير جدًا بالنسبة إلى PDF/A</translation>
    </message>
    <message>
        <source>JPEG XL files are read by libjxl %1, which cannot be loaded: %2</source>
        <translation>تُقرأ ملفات JPEG XL بمكتبة libjxl %1 التي يتعذّر تحميلها: %2</translation>
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
    <message>
        <source>%1, every page checked</source>
        <translation>%1، ودُققت كل الصفحات</translation>
    </message>
</context>
</TS>
