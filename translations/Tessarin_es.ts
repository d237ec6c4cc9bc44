<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>Open Destination Folder When Done</source>
        <translation>Abrir la carpeta de destino al terminar</translation>
    </message>
    <message>
        <source>Quiality:</source>
        <translation>Calidad:</translation>
    </message>
    <message>
        <source> Settings</source>
        <translation> – Ajustes</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>Output Format</source>
        <translation>Formato de salida</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Impares</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Pares</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>New Name:</source>
        <translation>Nombre nuevo:</translation>
    </message>
    <message>
        <source>Numbers:</source>
        <translation>Números:</translation>
    </message>
</context>
<context>
    <name>BCSNode</name>
    <message>
        <source>Brightness:</source>
        <translation>Brillo:</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Contraste:</translation>
    </message>
    <message>
        <source>Saturation:</source>
        <translation>Saturación:</translation>
    </message>
</context>
<context>
    <name>BINNode</name>
    <message>
        <source>Threshold:</source>
        <translation>Umbral:</translation>
    </message>
</context>
<context>
    <name>BLRNode</name>
    <message>
        <source>Blur:</source>
        <translation>Desenfoque:</translation>
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
        <translation>Detener</translation>
    </message>
    <message>
        <source> Batch Process</source>
        <translation> – Proceso por lotes</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H1&gt;Please, wait...&lt;/H1&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H1&gt;Espere, por favor…&lt;/H1&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>CRPNode</name>
    <message>
        <source>Left:</source>
        <translation>Izquierda:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Derecha:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Arriba:</translation>
    </message>
    <message>
        <source>Buttom:</source>
        <translation>Abajo:</translation>
    </message>
</context>
<context>
    <name>Creator</name>
    <message>
        <source>Show one photo</source>
        <translation>Mostrar una sola foto</translation>
    </message>
</context>
<context>
    <name>CreatorDropArea</name>
    <message>
        <source>Click to open the photos</source>
        <translation>Abrir las fotos</translation>
    </message>
    <message>
        <source>&lt;H2&gt;Drop the photos here&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;Suelte las fotos aquí&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>Abrir las fotos</translation>
    </message>
</context>
<context>
    <name>DirectionsWidget</name>
    <message>
        <source>Top left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top middle</source>
        <translation>Arriba en el centro</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom middle</source>
        <translation>Abajo en el centro</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>En medio a la izquierda</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>En el centro</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>En medio a la derecha</translation>
    </message>
</context>
<context>
    <name>FRMNode</name>
    <message>
        <source>Width:</source>
        <translation>Anchura:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Color:</translation>
    </message>
</context>
<context>
    <name>FavoritesDeleteDlg</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Delete the flow</source>
        <translation>Eliminar el flujo</translation>
    </message>
    <message>
        <source>Flows</source>
        <translation>Flujos</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
</context>
<context>
    <name>FlowPanel</name>
    <message>
        <source>Remove selected node</source>
        <translation>Quitar la operación seleccionada</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operaciones</translation>
    </message>
    <message>
        <source>Add node</source>
        <translation>Añadir una operación</translation>
    </message>
    <message>
        <source>Save the resulted photos to the separate folder</source>
        <translation>Guardar las fotos resultantes en una carpeta aparte</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Vaciar</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Guardar…</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>&amp;Eliminar…</translation>
    </message>
    <message>
        <source>&amp;Go To Flows Location</source>
        <translation>&amp;Abrir la carpeta de flujos</translation>
    </message>
    <message>
        <source>Save Flow</source>
        <translation>Guardar el flujo</translation>
    </message>
    <message>
        <source>Flow&apos;s Name:</source>
        <translation>Nombre del flujo:</translation>
    </message>
    <message>
        <source>Can not create the flow without name</source>
        <translation>No se puede crear un flujo sin nombre</translation>
    </message>
    <message>
        <source>The flow the with name &quot;</source>
        <translation>El flujo con el nombre &quot;</translation>
    </message>
    <message>
        <source>&quot; already exists.
Overwrite?</source>
        <translation>&quot; ya existe.
¿Sobrescribirlo?</translation>
    </message>
    <message>
        <source>Remove the flow:
 &quot;</source>
        <translation>Se eliminará el flujo:
 &quot;</translation>
    </message>
    <message>
        <source>&quot;?</source>
        <translation>&quot;. ¿Continuar?</translation>
    </message>
</context>
<context>
    <name>HSTNode</name>
    <message>
        <source>Left:</source>
        <translation>Izquierda:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Derecha:</translation>
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
        <translation>Añadir una operación</translation>
    </message>
    <message>
        <source>Press the round + and pick a step.</source>
        <translation>Pulse el + redondo y elija un paso.</translation>
    </message>
    <message>
        <source>Steps run from left to right.</source>
        <translation>Los pasos van de izquierda a derecha.</translation>
    </message>
</context>
<context>
    <name>MRRNode</name>
    <message>
        <source>Mirror horizontally</source>
        <translation>Reflejar en horizontal</translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation>Reflejar en vertical</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
</context>
<context>
    <name>NodesTabBar</name>
    <message>
        <source>Earlier operations</source>
        <translation>Operaciones anteriores</translation>
    </message>
    <message>
        <source>Later operations</source>
        <translation>Operaciones siguientes</translation>
    </message>
</context>
<context>
    <name>RGBNode</name>
    <message>
        <source>Red&lt;-&gt;Blue</source>
        <translation>Rojo&lt;-&gt;Azul</translation>
    </message>
    <message>
        <source>Red&lt;-&gt;Green</source>
        <translation>Rojo&lt;-&gt;Verde</translation>
    </message>
    <message>
        <source>Green&lt;-&gt;Blue</source>
        <translation>Verde&lt;-&gt;Azul</translation>
    </message>
</context>
<context>
    <name>RSZNode</name>
    <message>
        <source>Width:</source>
        <translation>Anchura:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Altura:</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Porcentaje</translation>
    </message>
    <message>
        <source>Maximum Pixels</source>
        <translation>Máximo en píxeles</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Píxeles</translation>
    </message>
    <message>
        <source>Scale by:</source>
        <translation>Escalar por:</translation>
    </message>
</context>
<context>
    <name>RTTNode</name>
    <message>
        <source>Rotate right</source>
        <translation>Girar a la derecha</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Girar a la izquierda</translation>
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
        <translation>Vista previa</translation>
    </message>
</context>
<context>
    <name>UCSNode</name>
    <message>
        <source>Radius:</source>
        <translation>Radio:</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>Opacidad:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Color:</translation>
    </message>
</context>
<context>
    <name>WMRNode</name>
    <message>
        <source>Size:</source>
        <translation>Tamaño:</translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation>Transparencia:</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Negrita</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Cursiva</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>Subrayado</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Color del texto</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Draw the background</source>
        <translation>Dibujar el fondo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Open the watermark file</source>
        <translation>Abrir el archivo de la marca de agua</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Expandir</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Desplazamiento horizontal</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Desplazamiento vertical</translation>
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
        <translation>Logotipo:</translation>
    </message>
    <message>
        <source>Expand:</source>
        <translation>Expandir:</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Texto:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Fuente:</translation>
    </message>
    <message>
        <source>Text color:</source>
        <translation>Color:</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Fondo:</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Posición:</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Can not open the image file:</source>
        <translation>No se puede abrir el archivo de imagen:</translation>
    </message>
</context>
</TS>
