<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>सब चुनें(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>एक कदम बढ़ाएँ(&amp;U)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>एक कदम घटाएँ(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QComboBox</name>
    <message>
        <source>Open the combo box selection popup</source>
        <translation>विकल्पों की सूची खोलें</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>ठीक है</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1 File</source>
        <translation>%1 फ़ाइल</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
फ़ोल्डर नहीं मिला।
कृपया जाँच लें कि फ़ोल्डर का नाम सही है।</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
फ़ाइल नहीं मिली।
कृपया जाँच लें कि फ़ाइल का नाम सही है।</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 पहले से मौजूद है।
क्या आप इसे बदलना चाहते हैं?</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>चुनें(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>मिटाएँ(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>नया फ़ोल्डर(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>खोलें(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>नाम बदलें(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>सहेजें(&amp;S)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>&apos;%1&apos; में बदलाव की अनुमति नहीं है।
क्या आप फिर भी इसे मिटाना चाहते हैं?</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>उपनाम</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>सभी फ़ाइलें (*)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>सभी फ़ाइलें (*)</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>क्या आप वाकई &apos;%1&apos; को मिटाना चाहते हैं?</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>पीछे</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>विवरण के साथ दिखाएँ</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>सूची के रूप में दिखाएँ</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>फ़ोल्डर मिटाया नहीं जा सका।</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>नया फ़ोल्डर बनाएँ</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>नया फ़ोल्डर बनाएँ</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>मिटाएँ</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>विवरण</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>फ़ोल्डर</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>फ़ोल्डर:</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>ड्राइव</translation>
    </message>
    <message>
        <source>File</source>
        <translation>फ़ाइल</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>फ़ाइल का नाम(&amp;N):</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>फ़ोल्डर</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>फ़ाइलें</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>फ़ाइलों का प्रकार:</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>फ़ोल्डर खोजें</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>फ़ोल्डर</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>आगे</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>पीछे जाएँ</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>आगे जाएँ</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>ऊपर के फ़ोल्डर में जाएँ</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>सूची</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>जगहों और बुकमार्क की सूची</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>यहाँ खोजें:</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>मेरा कंप्यूटर</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>नया फ़ोल्डर</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>खोलें</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>ऊपर का फ़ोल्डर</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>हाल की जगहें</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>इस रूप में सहेजें</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>शॉर्टकट</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>दिखाएँ </translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>छिपी फ़ाइलें दिखाएँ(&amp;H)</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>साइडबार</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>अज्ञात</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;नाम &quot;%1&quot; इस्तेमाल नहीं किया जा सकता।&lt;/b&gt;&lt;p&gt;कोई दूसरा नाम आज़माएँ, जिसमें कम अक्षर हों या विराम चिह्न न हों।</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>कंप्यूटर</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>बदलने की तारीख</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>फ़ाइल का नाम अमान्य है</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>प्रकार</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>मेरा कंप्यूटर</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>नाम</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>आकार</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>प्रकार</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>रद्द करें(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>बंद करें(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>ठीक है(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>सहेजें(&amp;S)</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>सहेजे बिना बंद करें</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Copy</source>
        <translation>कॉपी करें(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>चिपकाएँ(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>फिर से करें(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>पहले जैसा करें(&amp;U)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>काटें(&amp;T)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>मिटाएँ</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>सब चुनें</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;No</source>
        <translation>नहीं(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>हाँ(&amp;Y)</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>निरस्त करें</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>लागू करें</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>न सहेजें</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>सहायता</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>अनदेखा करें</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>सबके लिए नहीं(&amp;O)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>खोलें</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>रीसेट करें</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>मूल मान लौटाएँ</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>फिर कोशिश करें</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>सहेजें</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>सब सहेजें</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>सबके लिए हाँ(&amp;A)</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Bottom</source>
        <translation>सबसे नीचे</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>बायाँ किनारा</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>एक पृष्ठ नीचे</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>एक पृष्ठ बाएँ</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>एक पृष्ठ दाएँ</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>एक पृष्ठ ऊपर</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>दायाँ किनारा</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>नीचे स्क्रॉल करें</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>यहाँ तक स्क्रॉल करें</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>बाएँ स्क्रॉल करें</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>दाएँ स्क्रॉल करें</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>ऊपर स्क्रॉल करें</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>सबसे ऊपर</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>कॉपी करें(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>चिपकाएँ(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>फिर से करें(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>पहले जैसा करें(&amp;U)</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>लिंक का पता कॉपी करें(&amp;L)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>काटें(&amp;T)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>मिटाएँ</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>सब चुनें</translation>
    </message>
</context>
</TS>
