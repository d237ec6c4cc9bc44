<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>Open Destination Folder When Done</source>
        <translation>Zielordner nach Abschluss öffnen</translation>
    </message>
    <message>
        <source>Quiality:</source>
        <translation>Qualität:</translation>
    </message>
    <message>
        <source> Settings</source>
        <translation> – Einstellungen</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <source>Output Format</source>
        <translation>Ausgabeformat</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Ungerade</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>New Name:</source>
        <translation>Neuer Name:</translation>
    </message>
    <message>
        <source>Numbers:</source>
        <translation>Nummern:</translation>
    </message>
</context>
<context>
    <name>BCSNode</name>
    <message>
        <source>Brightness:</source>
        <translation>Helligkeit:</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Kontrast:</translation>
    </message>
    <message>
        <source>Saturation:</source>
        <translation>Sättigung:</translation>
    </message>
</context>
<context>
    <name>BINNode</name>
    <message>
        <source>Threshold:</source>
        <translation>Schwellwert:</translation>
    </message>
</context>
<context>
    <name>BLRNode</name>
    <message>
        <source>Blur:</source>
        <translation>Weichzeichnen:</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source> Batch Process</source>
        <translation> – Stapelverarbeitung</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H1&gt;Please, wait...&lt;/H1&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H1&gt;Bitte warten …&lt;/H1&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>CRPNode</name>
    <message>
        <source>Left:</source>
        <translation>Links:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Rechts:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Oben:</translation>
    </message>
    <message>
        <source>Buttom:</source>
        <translation>Unten:</translation>
    </message>
</context>
<context>
    <name>Creator</name>
    <message>
        <source>Show one photo</source>
        <translation>Ein Foto zeigen</translation>
    </message>
</context>
<context>
    <name>CreatorDropArea</name>
    <message>
        <source>Click to open the photos</source>
        <translation>Klicken, um Fotos zu öffnen</translation>
    </message>
    <message>
        <source>&lt;H2&gt;Drop the photos here&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;Fotos hier ablegen&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>Fotos öffnen</translation>
    </message>
</context>
<context>
    <name>DirectionsWidget</name>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top middle</source>
        <translation>Oben Mitte</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom middle</source>
        <translation>Unten Mitte</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>Mitte links</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>Mitte rechts</translation>
    </message>
</context>
<context>
    <name>FRMNode</name>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Farbe:</translation>
    </message>
</context>
<context>
    <name>FavoritesDeleteDlg</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Delete the flow</source>
        <translation>Ablauf löschen</translation>
    </message>
    <message>
        <source>Flows</source>
        <translation>Abläufe</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
</context>
<context>
    <name>FlowPanel</name>
    <message>
        <source>Remove selected node</source>
        <translation>Gewählten Schritt entfernen</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>Add node</source>
        <translation>Schritt hinzufügen</translation>
    </message>
    <message>
        <source>Save the resulted photos to the separate folder</source>
        <translation>Ergebnisse in einem eigenen Ordner speichern</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Speichern …</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>L&amp;öschen …</translation>
    </message>
    <message>
        <source>&amp;Go To Flows Location</source>
        <translation>&amp;Ordner der Abläufe öffnen</translation>
    </message>
    <message>
        <source>Save Flow</source>
        <translation>Ablauf speichern</translation>
    </message>
    <message>
        <source>Flow&apos;s Name:</source>
        <translation>Name des Ablaufs:</translation>
    </message>
    <message>
        <source>Can not create the flow without name</source>
        <translation>Ein Ablauf ohne Namen kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>The flow the with name &quot;</source>
        <translation>Ein Ablauf mit dem Namen &quot;</translation>
    </message>
    <message>
        <source>&quot; already exists.
Overwrite?</source>
        <translation>&quot; existiert bereits.
Überschreiben?</translation>
    </message>
    <message>
        <source>Remove the flow:
 &quot;</source>
        <translation>Diesen Ablauf entfernen:
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
        <translation>Links:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Rechts:</translation>
    </message>
</context>
<context>
    <name>IconWidget</name>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
</context>
<context>
    <name>InitLabel</name>
    <message>
        <source>Add an operation</source>
        <translation>Schritt hinzufügen</translation>
    </message>
    <message>
        <source>Press the round + and pick a step.</source>
        <translation>Rundes + drücken, Schritt wählen.</translation>
    </message>
    <message>
        <source>Steps run from left to right.</source>
        <translation>Schritte laufen von links nach rechts.</translation>
    </message>
</context>
<context>
    <name>MRRNode</name>
    <message>
        <source>Mirror horizontally</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation>Vertikal spiegeln</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>NodesTabBar</name>
    <message>
        <source>Earlier operations</source>
        <translation>Frühere Schritte</translation>
    </message>
    <message>
        <source>Later operations</source>
        <translation>Spätere Schritte</translation>
    </message>
</context>
<context>
    <name>RGBNode</name>
    <message>
        <source>Red&lt;-&gt;Blue</source>
        <translation>Rot&lt;-&gt;Blau</translation>
    </message>
    <message>
        <source>Red&lt;-&gt;Green</source>
        <translation>Rot&lt;-&gt;Grün</translation>
    </message>
    <message>
        <source>Green&lt;-&gt;Blue</source>
        <translation>Grün&lt;-&gt;Blau</translation>
    </message>
</context>
<context>
    <name>RSZNode</name>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>Maximum Pixels</source>
        <translation>Höchstmaß in Pixeln</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Scale by:</source>
        <translation>Skalieren nach:</translation>
    </message>
</context>
<context>
    <name>RTTNode</name>
    <message>
        <source>Rotate right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Nach links drehen</translation>
    </message>
</context>
<context>
    <name>Representor</name>
    <message>
        <source>Large view</source>
        <translation>Große Ansicht</translation>
    </message>
</context>
<context>
    <name>TabLabel</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>UCSNode</name>
    <message>
        <source>Radius:</source>
        <translation>Radius:</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>Deckkraft:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Farbe:</translation>
    </message>
</context>
<context>
    <name>WMRNode</name>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation>Transparenz:</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Draw the background</source>
        <translation>Hintergrund zeichnen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Open the watermark file</source>
        <translation>Wasserzeichen-Datei öffnen</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Strecken</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Horizontaler Versatz</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Vertikaler Versatz</translation>
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
        <translation>Art:</translation>
    </message>
    <message>
        <source>Logo:</source>
        <translation>Logo:</translation>
    </message>
    <message>
        <source>Expand:</source>
        <translation>Strecken:</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Text:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Schrift:</translation>
    </message>
    <message>
        <source>Text color:</source>
        <translation>Textfarbe:</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Hintergrund:</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Can not open the image file:</source>
        <translation>Die Bilddatei lässt sich nicht öffnen:</translation>
    </message>
</context>
</TS>
