<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contacts Us</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ColorWidgetPopup</name>
    <message>
        <source>Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::InputDialog</name>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abort</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::MovieLabel</name>
    <message>
        <source>Animation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>Introduction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
