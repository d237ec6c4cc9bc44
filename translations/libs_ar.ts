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
    <message>
        <source>Check Updates</source>
        <translation>التحقق من التحديثات</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppUpdateDialog</name>
    <message>
        <source>Check for updates on start</source>
        <translation>التحقق من التحديثات عند البدء</translation>
    </message>
    <message>
        <source> Updates Notification</source>
        <translation> – إشعار التحديثات</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version of </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;يتوفر إصدار أحدث من </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Go to the updates web page?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>.&lt;br&gt;هل تريد الانتقال إلى صفحة التحديثات؟&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the updates web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;أنت تستخدم أحدث إصدار متوفر.&lt;br&gt;هل تريد الانتقال إلى صفحة التحديثات على أي حال؟&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
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
    <name>QMWidgets::ImageArea</name>
    <message>
        <source>Loading</source>
        <translation>جارٍ التحميل</translation>
    </message>
    <message>
        <source>&lt;H1&gt;Fit to Window&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;ملاءمة النافذة&lt;/H1&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageViewer</name>
    <message>
        <source>Open with Preview</source>
        <translation>فتح في العارض</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>التكبير</translation>
    </message>
    <message>
        <source>Reduce the picture</source>
        <translation>تصغير الصورة</translation>
    </message>
    <message>
        <source>Enlarge the picture</source>
        <translation>تكبير الصورة</translation>
    </message>
    <message>
        <source>Actual Pixels</source>
        <translation>الحجم الفعلي</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>Fit To Window</source>
        <translation>ملاءمة النافذة</translation>
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
<context>
    <name>QMWidgets::UpdateCheck</name>
    <message>
        <source> Updates Check Error</source>
        <translation> – خطأ في التحقق من التحديثات</translation>
    </message>
    <message>
        <source>&lt;H3&gt;No internet connection is available,&lt;br&gt;please, check the firewall settings and make sure that&lt;br&gt;you are not using the the internet connection via the proxy server.&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;لا يوجد اتصال بالإنترنت،&lt;br&gt;يرجى التحقق من إعدادات جدار الحماية والتأكد من&lt;br&gt;أن الاتصال لا يمر عبر خادم وكيل.&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>StepButtons</name>
    <message>
        <source>Next photo</source>
        <translation>الصورة التالية</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>الصورة السابقة</translation>
    </message>
</context>
</TS>
