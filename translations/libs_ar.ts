<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;يستخدم هذا البرنامج:&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>قيّم هذا التطبيق</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>المزيد من التطبيقات</translation>
    </message>
    <message>
        <source>Contacts Us</source>
        <translation>اتصل بنا</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>صفحة الدعم</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ColorWidgetPopup</name>
    <message>
        <source>Colors</source>
        <translation>الألوان</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>اللون %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;أفلت الصور هنا&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>انقر لفتح الصور</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>فتح الصور</translation>
    </message>
</context>
<context>
    <name>QMWidgets::InputDialog</name>
    <message>
        <source>Ok</source>
        <translation>موافق</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>إجهاض</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>تجاهل</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>نعم للكل</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>لا للكل</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MovieLabel</name>
    <message>
        <source>Animation</source>
        <translation>رسوم متحركة</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>Introduction</source>
        <translation>مقدمة</translation>
    </message>
    <message>
        <source>More</source>
        <translation>المزيد</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>قيّم التطبيق</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>المزيد من التطبيقات</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>مشاركة</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>انضم إلينا</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>قائمة البرنامج</translation>
    </message>
</context>
</TS>
