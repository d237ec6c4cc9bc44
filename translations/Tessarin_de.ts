<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>Open Destination Folder When Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quiality:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Format</source>
        <translation>Ausgabeformat</translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Odd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Even</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbers:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BCSNode</name>
    <message>
        <source>Brightness:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BINNode</name>
    <message>
        <source>Threshold:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BLRNode</name>
    <message>
        <source>Blur:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Batch Process</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H1&gt;Please, wait...&lt;/H1&gt;&lt;/CENTER&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CRPNode</name>
    <message>
        <source>Left:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buttom:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Creator</name>
    <message>
        <source>Show one photo</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CreatorDropArea</name>
    <message>
        <source>Click to open the photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;H2&gt;Drop the photos here&lt;/H2&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DirectionsWidget</name>
    <message>
        <source>Top left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top middle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom middle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FRMNode</name>
    <message>
        <source>Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FavoritesDeleteDlg</name>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the flow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FlowPanel</name>
    <message>
        <source>Remove selected node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add node</source>
        <translation>Operation hinzufügen</translation>
    </message>
    <message>
        <source>Save the resulted photos to the separate folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HSTNode</name>
    <message>
        <source>Left:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IconWidget</name>
    <message>
        <source>Photos</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MRRNode</name>
    <message>
        <source>Mirror horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RGBNode</name>
    <message>
        <source>Red&lt;-&gt;Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red&lt;-&gt;Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green&lt;-&gt;Blue</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RSZNode</name>
    <message>
        <source>Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum Pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale by:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RTTNode</name>
    <message>
        <source>Rotate right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StepButtons</name>
    <message>
        <source>Next photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UCSNode</name>
    <message>
        <source>Radius:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WMRNode</name>
    <message>
        <source>Size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw the background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the watermark file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>y:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logo:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expand:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text color:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not open the image file:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
