<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>Open Destination Folder When Done</source>
        <translation>पूरा होने पर गंतव्य फ़ोल्डर खोलें</translation>
    </message>
    <message>
        <source>Quiality:</source>
        <translation>गुणवत्ता:</translation>
    </message>
    <message>
        <source> Settings</source>
        <translation> – सेटिंग</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>फ़ॉर्मेट:</translation>
    </message>
    <message>
        <source>Output Format</source>
        <translation>आउटपुट फ़ॉर्मेट</translation>
    </message>
    <message>
        <source>All</source>
        <translation>सभी</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>विषम</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>सम</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>नाम बदलें</translation>
    </message>
    <message>
        <source>New Name:</source>
        <translation>नया नाम:</translation>
    </message>
    <message>
        <source>Numbers:</source>
        <translation>संख्याएँ:</translation>
    </message>
</context>
<context>
    <name>BCSNode</name>
    <message>
        <source>Brightness:</source>
        <translation>चमक:</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>कंट्रास्ट:</translation>
    </message>
    <message>
        <source>Saturation:</source>
        <translation>सैचुरेशन:</translation>
    </message>
</context>
<context>
    <name>BINNode</name>
    <message>
        <source>Threshold:</source>
        <translation>सीमा मान:</translation>
    </message>
</context>
<context>
    <name>BLRNode</name>
    <message>
        <source>Blur:</source>
        <translation>धुंधलापन:</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source>Pause</source>
        <translation>रोकें</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>बंद करें</translation>
    </message>
    <message>
        <source> Batch Process</source>
        <translation> – बैच प्रोसेस</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>प्रगति</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>जारी रखें</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H1&gt;Please, wait...&lt;/H1&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H1&gt;कृपया प्रतीक्षा करें…&lt;/H1&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>CRPNode</name>
    <message>
        <source>Left:</source>
        <translation>बाएँ:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>दाएँ:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>ऊपर:</translation>
    </message>
    <message>
        <source>Buttom:</source>
        <translation>नीचे:</translation>
    </message>
</context>
<context>
    <name>Creator</name>
    <message>
        <source>Show one photo</source>
        <translation>एक फ़ोटो दिखाएँ</translation>
    </message>
</context>
<context>
    <name>CreatorDropArea</name>
    <message>
        <source>Click to open the photos</source>
        <translation>फ़ोटो खोलें</translation>
    </message>
    <message>
        <source>&lt;H2&gt;Drop the photos here&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;फ़ोटो यहाँ छोड़ें&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>फ़ोटो खोलें</translation>
    </message>
</context>
<context>
    <name>DirectionsWidget</name>
    <message>
        <source>Top left</source>
        <translation>ऊपर बाएँ</translation>
    </message>
    <message>
        <source>Top middle</source>
        <translation>ऊपर बीच में</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>ऊपर दाएँ</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>नीचे बाएँ</translation>
    </message>
    <message>
        <source>Bottom middle</source>
        <translation>नीचे बीच में</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>नीचे दाएँ</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>बीच में बाएँ</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>बीच में</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>बीच में दाएँ</translation>
    </message>
</context>
<context>
    <name>FRMNode</name>
    <message>
        <source>Width:</source>
        <translation>चौड़ाई:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>रंग:</translation>
    </message>
</context>
<context>
    <name>FavoritesDeleteDlg</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>रद्द करें(&amp;C)</translation>
    </message>
    <message>
        <source>Delete the flow</source>
        <translation>फ़्लो मिटाएँ</translation>
    </message>
    <message>
        <source>Flows</source>
        <translation>फ़्लो</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>मिटाएँ(&amp;D)</translation>
    </message>
</context>
<context>
    <name>FlowPanel</name>
    <message>
        <source>Remove selected node</source>
        <translation>चुना गया ऑपरेशन हटाएँ</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>ऑपरेशन</translation>
    </message>
    <message>
        <source>Add node</source>
        <translation>ऑपरेशन जोड़ें</translation>
    </message>
    <message>
        <source>Save the resulted photos to the separate folder</source>
        <translation>तैयार फ़ोटो अलग फ़ोल्डर में सहेजें</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>खाली करें(&amp;C)</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>चेतावनी</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>सहेजें…(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>मिटाएँ…(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Go To Flows Location</source>
        <translation>फ़्लो का फ़ोल्डर खोलें(&amp;G)</translation>
    </message>
    <message>
        <source>Save Flow</source>
        <translation>फ़्लो सहेजें</translation>
    </message>
    <message>
        <source>Flow&apos;s Name:</source>
        <translation>फ़्लो का नाम:</translation>
    </message>
    <message>
        <source>Can not create the flow without name</source>
        <translation>बिना नाम का फ़्लो नहीं बनाया जा सकता</translation>
    </message>
    <message>
        <source>The flow the with name &quot;</source>
        <translation>इस नाम का फ़्लो &quot;</translation>
    </message>
    <message>
        <source>&quot; already exists.
Overwrite?</source>
        <translation>&quot; पहले से मौजूद है।
क्या उसे बदल दें?</translation>
    </message>
    <message>
        <source>Remove the flow:
 &quot;</source>
        <translation>यह फ़्लो हटाएँ:
 &quot;</translation>
    </message>
    <message>
        <source>&quot;?</source>
        <translation>&quot;?</translation>
    </message>
</context>
<context>
    <name>HSTNode</name>
    <message>
        <source>Left:</source>
        <translation>बाएँ:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>दाएँ:</translation>
    </message>
</context>
<context>
    <name>IconWidget</name>
    <message>
        <source>Photos</source>
        <translation>फ़ोटो</translation>
    </message>
</context>
<context>
    <name>InitLabel</name>
    <message>
        <source>Add an operation</source>
        <translation>ऑपरेशन जोड़ें</translation>
    </message>
    <message>
        <source>Press the round + and pick a step.</source>
        <translation>गोल + दबाएँ और कोई चरण चुनें।</translation>
    </message>
    <message>
        <source>Steps run from left to right.</source>
        <translation>चरण बाएँ से दाएँ चलते हैं।</translation>
    </message>
</context>
<context>
    <name>MRRNode</name>
    <message>
        <source>Mirror horizontally</source>
        <translation>क्षैतिज पलटें</translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation>लंबवत पलटें</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Settings</source>
        <translation>सेटिंग</translation>
    </message>
</context>
<context>
    <name>NodesTabBar</name>
    <message>
        <source>Earlier operations</source>
        <translation>पिछले ऑपरेशन</translation>
    </message>
    <message>
        <source>Later operations</source>
        <translation>अगले ऑपरेशन</translation>
    </message>
</context>
<context>
    <name>RGBNode</name>
    <message>
        <source>Red&lt;-&gt;Blue</source>
        <translation>लाल&lt;-&gt;नीला</translation>
    </message>
    <message>
        <source>Red&lt;-&gt;Green</source>
        <translation>लाल&lt;-&gt;हरा</translation>
    </message>
    <message>
        <source>Green&lt;-&gt;Blue</source>
        <translation>हरा&lt;-&gt;नीला</translation>
    </message>
</context>
<context>
    <name>RSZNode</name>
    <message>
        <source>Width:</source>
        <translation>चौड़ाई:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>ऊँचाई:</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>प्रतिशत</translation>
    </message>
    <message>
        <source>Maximum Pixels</source>
        <translation>अधिकतम पिक्सेल</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>पिक्सेल</translation>
    </message>
    <message>
        <source>Scale by:</source>
        <translation>आकार का आधार:</translation>
    </message>
</context>
<context>
    <name>RTTNode</name>
    <message>
        <source>Rotate right</source>
        <translation>दाएँ घुमाएँ</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>बाएँ घुमाएँ</translation>
    </message>
</context>
<context>
    <name>Representor</name>
    <message>
        <source>Large view</source>
        <translation>बड़ा दृश्य</translation>
    </message>
</context>
<context>
    <name>TabLabel</name>
    <message>
        <source>Preview</source>
        <translation>पूर्वावलोकन</translation>
    </message>
</context>
<context>
    <name>UCSNode</name>
    <message>
        <source>Radius:</source>
        <translation>त्रिज्या:</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>अपारदर्शिता:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>रंग:</translation>
    </message>
</context>
<context>
    <name>WMRNode</name>
    <message>
        <source>Size:</source>
        <translation>आकार:</translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation>पारदर्शिता:</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>बोल्ड</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>इटैलिक</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>रेखांकित</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>टेक्स्ट का रंग</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>पृष्ठभूमि</translation>
    </message>
    <message>
        <source>Draw the background</source>
        <translation>पृष्ठभूमि बनाएँ</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>टेक्स्ट</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>चित्र</translation>
    </message>
    <message>
        <source>Open the watermark file</source>
        <translation>वॉटरमार्क फ़ाइल खोलें</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>फैलाएँ</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>क्षैतिज ऑफ़सेट</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>लंबवत ऑफ़सेट</translation>
    </message>
    <message>
        <source>x:</source>
        <translation>x:</translation>
    </message>
    <message>
        <source>y:</source>
        <translation>y:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>प्रकार:</translation>
    </message>
    <message>
        <source>Logo:</source>
        <translation>लोगो:</translation>
    </message>
    <message>
        <source>Expand:</source>
        <translation>फैलाएँ:</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>टेक्स्ट:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>फ़ॉन्ट:</translation>
    </message>
    <message>
        <source>Text color:</source>
        <translation>टेक्स्ट का रंग:</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>पृष्ठभूमि:</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>स्थान:</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>चेतावनी</translation>
    </message>
    <message>
        <source>Can not open the image file:</source>
        <translation>चित्र फ़ाइल नहीं खोली जा सकी:</translation>
    </message>
</context>
</TS>
