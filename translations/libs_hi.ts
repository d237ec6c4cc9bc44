<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>कानूनी सूचनाएँ(&amp;L)</translation>
    </message>
    <message>
        <source> Info</source>
        <translation> – जानकारी</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>ठीक है(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>छिपाएँ(&amp;H)</translation>
    </message>
    <message>
        <source>Legal Notices</source>
        <translation>कानूनी सूचनाएँ</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;यह प्रोग्राम इसका उपयोग करता है:&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>इस ऐप को रेट करें</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>और ऐप</translation>
    </message>
    <message>
        <source>Contacts Us</source>
        <translation>हमसे संपर्क करें</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>सहायता पेज</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>बाहर निकलें</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>अपडेट जाँचें</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>साझा करें</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>हमसे जुड़ें</translation>
    </message>
    <message>
        <source>About</source>
        <translation>परिचय</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppUpdateDialog</name>
    <message>
        <source>Check for updates on start</source>
        <translation>शुरू में अपडेट जाँचें</translation>
    </message>
    <message>
        <source> Updates Notification</source>
        <translation> – अपडेट सूचना</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version of </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;नया संस्करण उपलब्ध है: </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Go to the updates web page?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>।&lt;br&gt;क्या अपडेट वेब पेज पर जाएँ?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the updates web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;आप नवीनतम संस्करण का उपयोग कर रहे हैं।&lt;br&gt;फिर भी अपडेट वेब पेज पर जाएँ?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>हाँ</translation>
    </message>
    <message>
        <source>No</source>
        <translation>नहीं</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ColorWidgetPopup</name>
    <message>
        <source>Colors</source>
        <translation>रंग-पटल</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>रंग %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>स्टाइल शीट</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>खोलें</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>इस रूप में सहेजें</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>CSS स्टाइल एडिटर</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>तैयार</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>फ़ाइल(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>खोलें…(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>सहेजें(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>इस रूप में सहेजें…(&amp;A)</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>ऑपरेशन</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>जानकारी लगाएँ(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>लागू करें(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>रीसेट करें(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>सहायता(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>परिचय(&amp;A)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>परिचय</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;फ़ोटो यहाँ छोड़ें&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>फ़ोटो खोलें</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>फ़ोटो खोलें</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Never show on start</source>
        <translation>शुरू में न दिखाएँ(&amp;N)</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> – प्रस्तावना</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>बंद करें(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageArea</name>
    <message>
        <source>Loading</source>
        <translation>लोड हो रहा है</translation>
    </message>
    <message>
        <source>&lt;H1&gt;Fit to Window&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;विंडो में फ़िट&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>चित्र</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageViewer</name>
    <message>
        <source>Open with Preview</source>
        <translation>प्रीव्यू में खोलें</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ज़ूम</translation>
    </message>
    <message>
        <source>Reduce the picture</source>
        <translation>चित्र छोटा करें</translation>
    </message>
    <message>
        <source>Enlarge the picture</source>
        <translation>चित्र बड़ा करें</translation>
    </message>
    <message>
        <source>Actual Pixels</source>
        <translation>वास्तविक आकार</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>Fit To Window</source>
        <translation>विंडो में फ़िट करें</translation>
    </message>
</context>
<context>
    <name>QMWidgets::InputDialog</name>
    <message>
        <source>Ok</source>
        <translation>ठीक है</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>हमसे जुड़ें</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>हमसे जुड़ें</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Join us and stay informed&lt;br&gt;about our</source>
        <translation>हमसे जुड़ें और जानकारी पाते रहें&lt;br&gt;इनके बारे में</translation>
    </message>
    <message>
        <source>   1. FREE APP Actions&lt;br&gt;</source>
        <translation>   1. मुफ़्त ऑफ़र&lt;br&gt;</translation>
    </message>
    <message>
        <source>   2. APP Updates&lt;br&gt;</source>
        <translation>   2. ऐप अपडेट&lt;br&gt;</translation>
    </message>
    <message>
        <source>   3. New APPs&lt;br&gt;</source>
        <translation>   3. नए ऐप&lt;br&gt;</translation>
    </message>
    <message>
        <source>   4. Important News&lt;br&gt;</source>
        <translation>   4. ज़रूरी समाचार&lt;br&gt;</translation>
    </message>
    <message>
        <source>   and more...</source>
        <translation>   और भी बहुत कुछ…</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>No</source>
        <translation>नहीं</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>हाँ</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>निरस्त करें</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>फिर कोशिश करें</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>अनदेखा करें</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>सबके लिए हाँ</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>सबके लिए नहीं</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MovieLabel</name>
    <message>
        <source>Animation</source>
        <translation>एनिमेशन</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>Introduction</source>
        <translation>प्रस्तावना</translation>
    </message>
    <message>
        <source>More</source>
        <translation>और</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>ऐप को रेट करें</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>और ऐप</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>साझा करें</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>हमसे जुड़ें</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>प्रोग्राम मेनू</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateReminderDialog</name>
    <message>
        <source>&lt;br&gt;please rate it in the App Store.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;तो App Store में इसे रेट करें।&lt;br&gt;धन्यवाद!</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>अभी रेट करें(&amp;R)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Maybe Later</source>
        <translation>शायद बाद में(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Never Ask Me Again</source>
        <translation>फिर न पूछें(&amp;N)</translation>
    </message>
    <message>
        <source>Help Spread the Word about &quot;</source>
        <translation>दूसरों को बताएँ: &quot;</translation>
    </message>
    <message>
        <source>If you like </source>
        <translation>यदि आपको पसंद है </translation>
    </message>
    <message>
        <source>-App,</source>
        <translation> ऐप,</translation>
    </message>
</context>
<context>
    <name>QMWidgets::SocialRows</name>
    <message>
        <source>&amp;Close</source>
        <translation>बंद करें(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share </source>
        <translation>साझा करें: </translation>
    </message>
    <message>
        <source>If you like&lt;br&gt;&quot;</source>
        <translation>यदि आपको पसंद है&lt;br&gt;&quot;</translation>
    </message>
    <message>
        <source>&lt;br&gt;please share it with your friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;तो अपने मित्रों से साझा करें।&lt;br&gt;धन्यवाद!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>साझा करें</translation>
    </message>
    <message>
        <source>&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;तो अपने मित्रों से साझा करें।&lt;br&gt;धन्यवाद!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::UpdateCheck</name>
    <message>
        <source> Updates Check Error</source>
        <translation> – अपडेट जाँचने में त्रुटि</translation>
    </message>
    <message>
        <source>&lt;H3&gt;No internet connection is available,&lt;br&gt;please, check the firewall settings and make sure that&lt;br&gt;you are not using the the internet connection via the proxy server.&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;इंटरनेट कनेक्शन उपलब्ध नहीं है।&lt;br&gt;कृपया फ़ायरवॉल सेटिंग जाँचें और सुनिश्चित करें कि&lt;br&gt;कनेक्शन प्रॉक्सी सर्वर से होकर नहीं जाता।&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>StepButtons</name>
    <message>
        <source>Next photo</source>
        <translation>अगली फ़ोटो</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>पिछली फ़ोटो</translation>
    </message>
</context>
</TS>
