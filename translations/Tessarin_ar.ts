<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>Open Destination Folder When Done</source>
        <translation>فتح مجلد الوجهة عند الانتهاء</translation>
    </message>
    <message>
        <source>Quiality:</source>
        <translation>الجودة:</translation>
    </message>
    <message>
        <source> Settings</source>
        <translation> – الإعدادات</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>الصيغة:</translation>
    </message>
    <message>
        <source>Output Format</source>
        <translation>صيغة الإخراج</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>فردي</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>زوجي</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>إعادة التسمية</translation>
    </message>
    <message>
        <source>New Name:</source>
        <translation>الاسم الجديد:</translation>
    </message>
    <message>
        <source>Numbers:</source>
        <translation>الأرقام:</translation>
    </message>
</context>
<context>
    <name>BCSNode</name>
    <message>
        <source>Brightness:</source>
        <translation>السطوع:</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>التباين:</translation>
    </message>
    <message>
        <source>Saturation:</source>
        <translation>التشبع:</translation>
    </message>
</context>
<context>
    <name>BINNode</name>
    <message>
        <source>Threshold:</source>
        <translation>العتبة:</translation>
    </message>
</context>
<context>
    <name>BLRNode</name>
    <message>
        <source>Blur:</source>
        <translation>التمويه:</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source> Batch Process</source>
        <translation> – معالجة دفعية</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>استئناف</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H1&gt;Please, wait...&lt;/H1&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H1&gt;يرجى الانتظار…&lt;/H1&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>CRPNode</name>
    <message>
        <source>Left:</source>
        <translation>يسار:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>يمين:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>أعلى:</translation>
    </message>
    <message>
        <source>Buttom:</source>
        <translation>أسفل:</translation>
    </message>
</context>
<context>
    <name>Creator</name>
    <message>
        <source>Show one photo</source>
        <translation>عرض صورة واحدة</translation>
    </message>
</context>
<context>
    <name>CreatorDropArea</name>
    <message>
        <source>Click to open the photos</source>
        <translation>انقر لفتح الصور</translation>
    </message>
    <message>
        <source>&lt;H2&gt;Drop the photos here&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;أفلت الصور هنا&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>فتح الصور</translation>
    </message>
</context>
<context>
    <name>DirectionsWidget</name>
    <message>
        <source>Top left</source>
        <translation>أعلى اليسار</translation>
    </message>
    <message>
        <source>Top middle</source>
        <translation>أعلى الوسط</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>أعلى اليمين</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>أسفل اليسار</translation>
    </message>
    <message>
        <source>Bottom middle</source>
        <translation>أسفل الوسط</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>أسفل اليمين</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>وسط اليسار</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>الوسط</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>وسط اليمين</translation>
    </message>
</context>
<context>
    <name>FRMNode</name>
    <message>
        <source>Width:</source>
        <translation>العرض:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>اللون:</translation>
    </message>
</context>
<context>
    <name>FavoritesDeleteDlg</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>إلغاء(&amp;C)</translation>
    </message>
    <message>
        <source>Delete the flow</source>
        <translation>حذف سلسلة العمليات</translation>
    </message>
    <message>
        <source>Flows</source>
        <translation>سلاسل العمليات</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>حذف(&amp;D)</translation>
    </message>
</context>
<context>
    <name>FlowPanel</name>
    <message>
        <source>Remove selected node</source>
        <translation>إزالة العملية المحددة</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>العمليات</translation>
    </message>
    <message>
        <source>Add node</source>
        <translation>إضافة عملية</translation>
    </message>
    <message>
        <source>Save the resulted photos to the separate folder</source>
        <translation>حفظ الصور الناتجة في مجلد منفصل</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>مسح(&amp;C)</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>حفظ…(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>حذف…(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Go To Flows Location</source>
        <translation>الانتقال إلى مجلد السلاسل(&amp;G)</translation>
    </message>
    <message>
        <source>Save Flow</source>
        <translation>حفظ سلسلة العمليات</translation>
    </message>
    <message>
        <source>Flow&apos;s Name:</source>
        <translation>اسم السلسلة:</translation>
    </message>
    <message>
        <source>Can not create the flow without name</source>
        <translation>لا يمكن إنشاء سلسلة بلا اسم</translation>
    </message>
    <message>
        <source>The flow the with name &quot;</source>
        <translation>السلسلة المسماة &quot;</translation>
    </message>
    <message>
        <source>&quot; already exists.
Overwrite?</source>
        <translation>&quot; موجودة بالفعل.
هل تريد استبدالها؟</translation>
    </message>
    <message>
        <source>Remove the flow:
 &quot;</source>
        <translation>إزالة السلسلة:
 &quot;</translation>
    </message>
    <message>
        <source>&quot;?</source>
        <translation>&quot;؟</translation>
    </message>
</context>
<context>
    <name>HSTNode</name>
    <message>
        <source>Left:</source>
        <translation>يسار:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>يمين:</translation>
    </message>
</context>
<context>
    <name>IconWidget</name>
    <message>
        <source>Photos</source>
        <translation>الصور</translation>
    </message>
</context>
<context>
    <name>InitLabel</name>
    <message>
        <source>Add an operation</source>
        <translation>إضافة عملية</translation>
    </message>
    <message>
        <source>Press the round + and pick a step.</source>
        <translation>اضغط زر + المستدير واختر خطوة.</translation>
    </message>
    <message>
        <source>Steps run from left to right.</source>
        <translation>تسير الخطوات من اليمين إلى اليسار.</translation>
    </message>
</context>
<context>
    <name>MRRNode</name>
    <message>
        <source>Mirror horizontally</source>
        <translation>قلب أفقي</translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation>قلب رأسي</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
</context>
<context>
    <name>NodesTabBar</name>
    <message>
        <source>Earlier operations</source>
        <translation>العمليات السابقة</translation>
    </message>
    <message>
        <source>Later operations</source>
        <translation>العمليات التالية</translation>
    </message>
</context>
<context>
    <name>RGBNode</name>
    <message>
        <source>Red&lt;-&gt;Blue</source>
        <translation>أحمر&lt;-&gt;أزرق</translation>
    </message>
    <message>
        <source>Red&lt;-&gt;Green</source>
        <translation>أحمر&lt;-&gt;أخضر</translation>
    </message>
    <message>
        <source>Green&lt;-&gt;Blue</source>
        <translation>أخضر&lt;-&gt;أزرق</translation>
    </message>
</context>
<context>
    <name>RSZNode</name>
    <message>
        <source>Width:</source>
        <translation>العرض:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>الارتفاع:</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>نسبة مئوية</translation>
    </message>
    <message>
        <source>Maximum Pixels</source>
        <translation>الحد الأقصى بالبكسل</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>بكسل</translation>
    </message>
    <message>
        <source>Scale by:</source>
        <translation>التحجيم حسب:</translation>
    </message>
</context>
<context>
    <name>RTTNode</name>
    <message>
        <source>Rotate right</source>
        <translation>تدوير لليمين</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>تدوير لليسار</translation>
    </message>
</context>
<context>
    <name>Representor</name>
    <message>
        <source>Large view</source>
        <translation>عرض كبير</translation>
    </message>
</context>
<context>
    <name>TabLabel</name>
    <message>
        <source>Preview</source>
        <translation>معاينة</translation>
    </message>
</context>
<context>
    <name>UCSNode</name>
    <message>
        <source>Radius:</source>
        <translation>نصف القطر:</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>العتامة:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>اللون:</translation>
    </message>
</context>
<context>
    <name>WMRNode</name>
    <message>
        <source>Size:</source>
        <translation>الحجم:</translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation>الشفافية:</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>غامق</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>مائل</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>مسطر</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>لون النص</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>الخلفية</translation>
    </message>
    <message>
        <source>Draw the background</source>
        <translation>رسم الخلفية</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Open the watermark file</source>
        <translation>فتح ملف العلامة المائية</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>تمديد</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>الإزاحة الأفقية</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>الإزاحة الرأسية</translation>
    </message>
    <message>
        <source>x:</source>
        <translation>س:</translation>
    </message>
    <message>
        <source>y:</source>
        <translation>ص:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>النوع:</translation>
    </message>
    <message>
        <source>Logo:</source>
        <translation>الشعار:</translation>
    </message>
    <message>
        <source>Expand:</source>
        <translation>تمديد:</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>النص:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>الخط:</translation>
    </message>
    <message>
        <source>Text color:</source>
        <translation>لون النص:</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>الخلفية:</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>الموضع:</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>Can not open the image file:</source>
        <translation>تعذر فتح ملف الصورة:</translation>
    </message>
</context>
</TS>
