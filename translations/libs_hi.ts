<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
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
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;फ़ोटो यहाँ छोड़ें&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>फ़ोटो खोलने के लिए क्लिक करें</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>फ़ोटो खोलें</translation>
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
</TS>
