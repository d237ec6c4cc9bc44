<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>Open Destination Folder When Done</source>
        <translation>Apri la cartella di destinazione al termine</translation>
    </message>
    <message>
        <source>Quiality:</source>
        <translation>Qualità:</translation>
    </message>
    <message>
        <source> Settings</source>
        <translation> – Impostazioni</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>Output Format</source>
        <translation>Formato di uscita</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Dispari</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Pari</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>New Name:</source>
        <translation>Nuovo nome:</translation>
    </message>
    <message>
        <source>Numbers:</source>
        <translation>Numeri:</translation>
    </message>
</context>
<context>
    <name>BCSNode</name>
    <message>
        <source>Brightness:</source>
        <translation>Luminosità:</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Contrasto:</translation>
    </message>
    <message>
        <source>Saturation:</source>
        <translation>Saturazione:</translation>
    </message>
</context>
<context>
    <name>BINNode</name>
    <message>
        <source>Threshold:</source>
        <translation>Soglia:</translation>
    </message>
</context>
<context>
    <name>BLRNode</name>
    <message>
        <source>Blur:</source>
        <translation>Sfocatura:</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source> Batch Process</source>
        <translation> – Elaborazione in serie</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H1&gt;Please, wait...&lt;/H1&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H1&gt;Attendere…&lt;/H1&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>CRPNode</name>
    <message>
        <source>Left:</source>
        <translation>Sinistra:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Destra:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Alto:</translation>
    </message>
    <message>
        <source>Buttom:</source>
        <translation>Basso:</translation>
    </message>
</context>
<context>
    <name>Creator</name>
    <message>
        <source>Show one photo</source>
        <translation>Mostra una sola foto</translation>
    </message>
</context>
<context>
    <name>CreatorDropArea</name>
    <message>
        <source>Click to open the photos</source>
        <translation>Fai clic per aprire le foto</translation>
    </message>
    <message>
        <source>&lt;H2&gt;Drop the photos here&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;Trascina qui le foto&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>Apri le foto</translation>
    </message>
</context>
<context>
    <name>DirectionsWidget</name>
    <message>
        <source>Top left</source>
        <translation>In alto a sinistra</translation>
    </message>
    <message>
        <source>Top middle</source>
        <translation>In alto al centro</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>In alto a destra</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>In basso a sinistra</translation>
    </message>
    <message>
        <source>Bottom middle</source>
        <translation>In basso al centro</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>In basso a destra</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>Al centro a sinistra</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Al centro</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>Al centro a destra</translation>
    </message>
</context>
<context>
    <name>FRMNode</name>
    <message>
        <source>Width:</source>
        <translation>Larghezza:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Colore:</translation>
    </message>
</context>
<context>
    <name>FavoritesDeleteDlg</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Delete the flow</source>
        <translation>Elimina la sequenza</translation>
    </message>
    <message>
        <source>Flows</source>
        <translation>Sequenze</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
</context>
<context>
    <name>FlowPanel</name>
    <message>
        <source>Remove selected node</source>
        <translation>Rimuovi l’operazione selezionata</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operazioni</translation>
    </message>
    <message>
        <source>Add node</source>
        <translation>Aggiungi un’operazione</translation>
    </message>
    <message>
        <source>Save the resulted photos to the separate folder</source>
        <translation>Salva le foto elaborate in una cartella separata</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>S&amp;vuota</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Salva…</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>&amp;Elimina…</translation>
    </message>
    <message>
        <source>&amp;Go To Flows Location</source>
        <translation>&amp;Apri la cartella delle sequenze</translation>
    </message>
    <message>
        <source>Save Flow</source>
        <translation>Salva la sequenza</translation>
    </message>
    <message>
        <source>Flow&apos;s Name:</source>
        <translation>Nome della sequenza:</translation>
    </message>
    <message>
        <source>Can not create the flow without name</source>
        <translation>Impossibile creare una sequenza senza nome</translation>
    </message>
    <message>
        <source>The flow the with name &quot;</source>
        <translation>La sequenza con il nome &quot;</translation>
    </message>
    <message>
        <source>&quot; already exists.
Overwrite?</source>
        <translation>&quot; esiste già.
Sovrascriverla?</translation>
    </message>
    <message>
        <source>Remove the flow:
 &quot;</source>
        <translation>Rimuovere la sequenza:
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
        <translation>Sinistra:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Destra:</translation>
    </message>
</context>
<context>
    <name>IconWidget</name>
    <message>
        <source>Photos</source>
        <translation>Foto</translation>
    </message>
</context>
<context>
    <name>InitLabel</name>
    <message>
        <source>Add an operation</source>
        <translation>Aggiungi un’operazione</translation>
    </message>
    <message>
        <source>Press the round + and pick a step.</source>
        <translation>Premi il + rotondo e scegli un passo.</translation>
    </message>
    <message>
        <source>Steps run from left to right.</source>
        <translation>I passi vanno da sinistra a destra.</translation>
    </message>
</context>
<context>
    <name>MRRNode</name>
    <message>
        <source>Mirror horizontally</source>
        <translation>Rifletti in orizzontale</translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation>Rifletti in verticale</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
</context>
<context>
    <name>NodesTabBar</name>
    <message>
        <source>Earlier operations</source>
        <translation>Operazioni precedenti</translation>
    </message>
    <message>
        <source>Later operations</source>
        <translation>Operazioni successive</translation>
    </message>
</context>
<context>
    <name>RGBNode</name>
    <message>
        <source>Red&lt;-&gt;Blue</source>
        <translation>Rosso&lt;-&gt;Blu</translation>
    </message>
    <message>
        <source>Red&lt;-&gt;Green</source>
        <translation>Rosso&lt;-&gt;Verde</translation>
    </message>
    <message>
        <source>Green&lt;-&gt;Blue</source>
        <translation>Verde&lt;-&gt;Blu</translation>
    </message>
</context>
<context>
    <name>RSZNode</name>
    <message>
        <source>Width:</source>
        <translation>Larghezza:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Altezza:</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Percentuale</translation>
    </message>
    <message>
        <source>Maximum Pixels</source>
        <translation>Massimo in pixel</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Scale by:</source>
        <translation>Scala per:</translation>
    </message>
</context>
<context>
    <name>RTTNode</name>
    <message>
        <source>Rotate right</source>
        <translation>Ruota a destra</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Ruota a sinistra</translation>
    </message>
</context>
<context>
    <name>Representor</name>
    <message>
        <source>Large view</source>
        <translation>Vista grande</translation>
    </message>
</context>
<context>
    <name>TabLabel</name>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
</context>
<context>
    <name>UCSNode</name>
    <message>
        <source>Radius:</source>
        <translation>Raggio:</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>Opacità:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Colore:</translation>
    </message>
</context>
<context>
    <name>WMRNode</name>
    <message>
        <source>Size:</source>
        <translation>Dimensione:</translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation>Trasparenza:</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Grassetto</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Corsivo</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>Sottolineato</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Colore del testo</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>Draw the background</source>
        <translation>Disegna lo sfondo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Open the watermark file</source>
        <translation>Apri il file della filigrana</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Espandi</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Scostamento orizzontale</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Scostamento verticale</translation>
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
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Logo:</source>
        <translation>Logo:</translation>
    </message>
    <message>
        <source>Expand:</source>
        <translation>Espandi:</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Testo:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Carattere:</translation>
    </message>
    <message>
        <source>Text color:</source>
        <translation>Colore:</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Sfondo:</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Posizione:</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Can not open the image file:</source>
        <translation>Impossibile aprire il file dell’immagine:</translation>
    </message>
</context>
</TS>
