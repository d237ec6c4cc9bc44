<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>Open Destination Folder When Done</source>
        <translation>Abrir a pasta de destino ao terminar</translation>
    </message>
    <message>
        <source>Quiality:</source>
        <translation>Qualidade:</translation>
    </message>
    <message>
        <source> Settings</source>
        <translation> – Configurações</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
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
        <translation>Formato de saída</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Ímpares</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Pares</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>New Name:</source>
        <translation>Novo nome:</translation>
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
        <translation>Brilho:</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Contraste:</translation>
    </message>
    <message>
        <source>Saturation:</source>
        <translation>Saturação:</translation>
    </message>
</context>
<context>
    <name>BINNode</name>
    <message>
        <source>Threshold:</source>
        <translation>Limiar:</translation>
    </message>
</context>
<context>
    <name>BLRNode</name>
    <message>
        <source>Blur:</source>
        <translation>Desfoque:</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source> Batch Process</source>
        <translation> – Processamento em lote</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H1&gt;Please, wait...&lt;/H1&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H1&gt;Aguarde…&lt;/H1&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>CRPNode</name>
    <message>
        <source>Left:</source>
        <translation>Esquerda:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Direita:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Em cima:</translation>
    </message>
    <message>
        <source>Buttom:</source>
        <translation>Embaixo:</translation>
    </message>
</context>
<context>
    <name>Creator</name>
    <message>
        <source>Show one photo</source>
        <translation>Mostrar uma só foto</translation>
    </message>
</context>
<context>
    <name>CreatorDropArea</name>
    <message>
        <source>Click to open the photos</source>
        <translation>Clique para abrir as fotos</translation>
    </message>
    <message>
        <source>&lt;H2&gt;Drop the photos here&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;Solte as fotos aqui&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>Abrir as fotos</translation>
    </message>
</context>
<context>
    <name>DirectionsWidget</name>
    <message>
        <source>Top left</source>
        <translation>Em cima à esquerda</translation>
    </message>
    <message>
        <source>Top middle</source>
        <translation>Em cima no centro</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Em cima à direita</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Embaixo à esquerda</translation>
    </message>
    <message>
        <source>Bottom middle</source>
        <translation>Embaixo no centro</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Embaixo à direita</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>No meio à esquerda</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>No centro</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>No meio à direita</translation>
    </message>
</context>
<context>
    <name>FRMNode</name>
    <message>
        <source>Width:</source>
        <translation>Largura:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Cor:</translation>
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
        <translation>Excluir o fluxo</translation>
    </message>
    <message>
        <source>Flows</source>
        <translation>Fluxos</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Excluir</translation>
    </message>
</context>
<context>
    <name>FlowPanel</name>
    <message>
        <source>Remove selected node</source>
        <translation>Remover a operação selecionada</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operações</translation>
    </message>
    <message>
        <source>Add node</source>
        <translation>Adicionar uma operação</translation>
    </message>
    <message>
        <source>Save the resulted photos to the separate folder</source>
        <translation>Salvar as fotos resultantes em uma pasta separada</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Limpar</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Salvar…</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>&amp;Excluir…</translation>
    </message>
    <message>
        <source>&amp;Go To Flows Location</source>
        <translation>&amp;Abrir a pasta dos fluxos</translation>
    </message>
    <message>
        <source>Save Flow</source>
        <translation>Salvar o fluxo</translation>
    </message>
    <message>
        <source>Flow&apos;s Name:</source>
        <translation>Nome do fluxo:</translation>
    </message>
    <message>
        <source>Can not create the flow without name</source>
        <translation>Não é possível criar um fluxo sem nome</translation>
    </message>
    <message>
        <source>The flow the with name &quot;</source>
        <translation>O fluxo com o nome &quot;</translation>
    </message>
    <message>
        <source>&quot; already exists.
Overwrite?</source>
        <translation>&quot; já existe.
Substituir?</translation>
    </message>
    <message>
        <source>Remove the flow:
 &quot;</source>
        <translation>Remover o fluxo:
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
        <translation>Esquerda:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Direita:</translation>
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
        <translation>Adicionar uma operação</translation>
    </message>
    <message>
        <source>Press the round + and pick a step.</source>
        <translation>Clique no + e escolha um passo.</translation>
    </message>
    <message>
        <source>Steps run from left to right.</source>
        <translation>A ordem é da esquerda para a direita.</translation>
    </message>
</context>
<context>
    <name>MRRNode</name>
    <message>
        <source>Mirror horizontally</source>
        <translation>Espelhar na horizontal</translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation>Espelhar na vertical</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
</context>
<context>
    <name>NodesTabBar</name>
    <message>
        <source>Earlier operations</source>
        <translation>Operações anteriores</translation>
    </message>
    <message>
        <source>Later operations</source>
        <translation>Operações seguintes</translation>
    </message>
</context>
<context>
    <name>RGBNode</name>
    <message>
        <source>Red&lt;-&gt;Blue</source>
        <translation>Vermelho&lt;-&gt;Azul</translation>
    </message>
    <message>
        <source>Red&lt;-&gt;Green</source>
        <translation>Vermelho&lt;-&gt;Verde</translation>
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
        <translation>Largura:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Altura:</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Porcentagem</translation>
    </message>
    <message>
        <source>Maximum Pixels</source>
        <translation>Máximo em pixels</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Scale by:</source>
        <translation>Redimensionar por:</translation>
    </message>
</context>
<context>
    <name>RTTNode</name>
    <message>
        <source>Rotate right</source>
        <translation>Girar para a direita</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Girar para a esquerda</translation>
    </message>
</context>
<context>
    <name>Representor</name>
    <message>
        <source>Large view</source>
        <translation>Visualização grande</translation>
    </message>
</context>
<context>
    <name>TabLabel</name>
    <message>
        <source>Preview</source>
        <translation>Prévia</translation>
    </message>
</context>
<context>
    <name>UCSNode</name>
    <message>
        <source>Radius:</source>
        <translation>Raio:</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>Opacidade:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Cor:</translation>
    </message>
</context>
<context>
    <name>WMRNode</name>
    <message>
        <source>Size:</source>
        <translation>Tamanho:</translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation>Transparência:</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Negrito</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Itálico</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>Sublinhado</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Cor do texto</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fundo</translation>
    </message>
    <message>
        <source>Draw the background</source>
        <translation>Desenhar o fundo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Open the watermark file</source>
        <translation>Abrir o arquivo da marca-d’água</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Expandir</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Deslocamento horizontal</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Deslocamento vertical</translation>
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
        <translation>Fonte:</translation>
    </message>
    <message>
        <source>Text color:</source>
        <translation>Cor do texto:</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Fundo:</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Posição:</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Can not open the image file:</source>
        <translation>Não é possível abrir o arquivo de imagem:</translation>
    </message>
</context>
</TS>
