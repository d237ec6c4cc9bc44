<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>إشعارات قانونية(&amp;L)</translation>
    </message>
    <message>
        <source> Info</source>
        <translation> – معلومات</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>موافق(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>إخفاء(&amp;H)</translation>
    </message>
    <message>
        <source>Legal Notices</source>
        <translation>إشعارات قانونية</translation>
    </message>
</context>
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
    <message>
        <source>Share</source>
        <translation>مشاركة</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>انضم إلينا</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول البرنامج</translation>
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
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>ورقة الأنماط</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>حفظ باسم</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>محرر أنماط CSS</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>جاهز</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ملف(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>فتح…(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>حفظ(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>حفظ باسم…(&amp;A)</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>العمليات</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>تعيين المعلومات(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>تطبيق(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>إعادة الضبط(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>مساعدة(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>حول(&amp;A)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول البرنامج</translation>
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
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Never show on start</source>
        <translation>عدم العرض عند البدء(&amp;N)</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> – مقدمة</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق(&amp;C)</translation>
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
    <message>
        <source>Picture</source>
        <translation>الصورة</translation>
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
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>انضم إلينا</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>انضم إلينا</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Join us and stay informed&lt;br&gt;about our</source>
        <translation>انضم إلينا وابقَ على اطلاع&lt;br&gt;على</translation>
    </message>
    <message>
        <source>   1. FREE APP Actions&lt;br&gt;</source>
        <translation>   1. العروض المجانية&lt;br&gt;</translation>
    </message>
    <message>
        <source>   2. APP Updates&lt;br&gt;</source>
        <translation>   2. تحديثات التطبيقات&lt;br&gt;</translation>
    </message>
    <message>
        <source>   3. New APPs&lt;br&gt;</source>
        <translation>   3. التطبيقات الجديدة&lt;br&gt;</translation>
    </message>
    <message>
        <source>   4. Important News&lt;br&gt;</source>
        <translation>   4. الأخبار المهمة&lt;br&gt;</translation>
    </message>
    <message>
        <source>   and more...</source>
        <translation>   والمزيد…</translation>
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
        <translation>إحباط</translation>
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
    <name>QMWidgets::RateReminderDialog</name>
    <message>
        <source>&lt;br&gt;please rate it in the App Store.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;فقيّمه في متجر التطبيقات.&lt;br&gt;شكرًا!</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>قيّم الآن(&amp;R)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Maybe Later</source>
        <translation>ربما لاحقًا(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Never Ask Me Again</source>
        <translation>لا تسألني مجددًا(&amp;N)</translation>
    </message>
    <message>
        <source>Help Spread the Word about &quot;</source>
        <translation>ساعد في التعريف بـ &quot;</translation>
    </message>
    <message>
        <source>If you like </source>
        <translation>إذا أعجبك تطبيق </translation>
    </message>
    <message>
        <source>-App,</source>
        <translation>،</translation>
    </message>
</context>
<context>
    <name>QMWidgets::SocialRows</name>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share </source>
        <translation>مشاركة </translation>
    </message>
    <message>
        <source>If you like&lt;br&gt;&quot;</source>
        <translation>إذا أعجبك&lt;br&gt;&quot;</translation>
    </message>
    <message>
        <source>&lt;br&gt;please share it with your friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;فشاركه مع أصدقائك.&lt;br&gt;شكرًا!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>مشاركة</translation>
    </message>
    <message>
        <source>&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;فشاركه مع أصدقائك.&lt;br&gt;شكرًا!</translation>
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
