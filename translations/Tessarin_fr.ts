<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>Open Destination Folder When Done</source>
        <translation>Ouvrir le dossier de destination à la fin</translation>
    </message>
    <message>
        <source>Quiality:</source>
        <translation>Qualité :</translation>
    </message>
    <message>
        <source> Settings</source>
        <translation> – Réglages</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format :</translation>
    </message>
    <message>
        <source>Output Format</source>
        <translation>Format de sortie</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Impairs</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Pairs</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>New Name:</source>
        <translation>Nouveau nom :</translation>
    </message>
    <message>
        <source>Numbers:</source>
        <translation>Numéros :</translation>
    </message>
</context>
<context>
    <name>BCSNode</name>
    <message>
        <source>Brightness:</source>
        <translation>Luminosité :</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Contraste :</translation>
    </message>
    <message>
        <source>Saturation:</source>
        <translation>Saturation :</translation>
    </message>
</context>
<context>
    <name>BINNode</name>
    <message>
        <source>Threshold:</source>
        <translation>Seuil :</translation>
    </message>
</context>
<context>
    <name>BLRNode</name>
    <message>
        <source>Blur:</source>
        <translation>Flou :</translation>
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
        <translation>Arrêter</translation>
    </message>
    <message>
        <source> Batch Process</source>
        <translation> – Traitement par lots</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H1&gt;Please, wait...&lt;/H1&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H1&gt;Veuillez patienter…&lt;/H1&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>CRPNode</name>
    <message>
        <source>Left:</source>
        <translation>Gauche :</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Droite :</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Haut :</translation>
    </message>
    <message>
        <source>Buttom:</source>
        <translation>Bas :</translation>
    </message>
</context>
<context>
    <name>Creator</name>
    <message>
        <source>Show one photo</source>
        <translation>Afficher une seule photo</translation>
    </message>
</context>
<context>
    <name>CreatorDropArea</name>
    <message>
        <source>Click to open the photos</source>
        <translation>Ouvrir des photos</translation>
    </message>
    <message>
        <source>&lt;H2&gt;Drop the photos here&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;Déposez les photos ici&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>Ouvrir les photos</translation>
    </message>
</context>
<context>
    <name>DirectionsWidget</name>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top middle</source>
        <translation>En haut au milieu</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom middle</source>
        <translation>En bas au milieu</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>Au milieu à gauche</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Au milieu</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>Au milieu à droite</translation>
    </message>
</context>
<context>
    <name>FRMNode</name>
    <message>
        <source>Width:</source>
        <translation>Largeur :</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Couleur :</translation>
    </message>
</context>
<context>
    <name>FavoritesDeleteDlg</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Delete the flow</source>
        <translation>Supprimer la séquence</translation>
    </message>
    <message>
        <source>Flows</source>
        <translation>Séquences</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
</context>
<context>
    <name>FlowPanel</name>
    <message>
        <source>Remove selected node</source>
        <translation>Retirer l’opération sélectionnée</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Opérations</translation>
    </message>
    <message>
        <source>Add node</source>
        <translation>Ajouter une opération</translation>
    </message>
    <message>
        <source>Save the resulted photos to the separate folder</source>
        <translation>Enregistrer les photos traitées dans un dossier à part</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Vider</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Enregistrer…</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>&amp;Go To Flows Location</source>
        <translation>&amp;Ouvrir le dossier des séquences</translation>
    </message>
    <message>
        <source>Save Flow</source>
        <translation>Enregistrer la séquence</translation>
    </message>
    <message>
        <source>Flow&apos;s Name:</source>
        <translation>Nom de la séquence :</translation>
    </message>
    <message>
        <source>Can not create the flow without name</source>
        <translation>Impossible de créer une séquence sans nom</translation>
    </message>
    <message>
        <source>The flow the with name &quot;</source>
        <translation>La séquence nommée &quot;</translation>
    </message>
    <message>
        <source>&quot; already exists.
Overwrite?</source>
        <translation>&quot; existe déjà.
La remplacer ?</translation>
    </message>
    <message>
        <source>Remove the flow:
 &quot;</source>
        <translation>Supprimer la séquence :
 &quot;</translation>
    </message>
    <message>
        <source>&quot;?</source>
        <translation>&quot; ?</translation>
    </message>
</context>
<context>
    <name>HSTNode</name>
    <message>
        <source>Left:</source>
        <translation>Gauche :</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Droite :</translation>
    </message>
</context>
<context>
    <name>IconWidget</name>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
</context>
<context>
    <name>InitLabel</name>
    <message>
        <source>Add an operation</source>
        <translation>Ajouter une opération</translation>
    </message>
    <message>
        <source>Press the round + and pick a step.</source>
        <translation>Cliquez sur + et choisissez une étape.</translation>
    </message>
    <message>
        <source>Steps run from left to right.</source>
        <translation>Les étapes vont de gauche à droite.</translation>
    </message>
</context>
<context>
    <name>MRRNode</name>
    <message>
        <source>Mirror horizontally</source>
        <translation>Miroir horizontal</translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation>Miroir vertical</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
</context>
<context>
    <name>NodesTabBar</name>
    <message>
        <source>Earlier operations</source>
        <translation>Opérations précédentes</translation>
    </message>
    <message>
        <source>Later operations</source>
        <translation>Opérations suivantes</translation>
    </message>
</context>
<context>
    <name>RGBNode</name>
    <message>
        <source>Red&lt;-&gt;Blue</source>
        <translation>Rouge&lt;-&gt;Bleu</translation>
    </message>
    <message>
        <source>Red&lt;-&gt;Green</source>
        <translation>Rouge&lt;-&gt;Vert</translation>
    </message>
    <message>
        <source>Green&lt;-&gt;Blue</source>
        <translation>Vert&lt;-&gt;Bleu</translation>
    </message>
</context>
<context>
    <name>RSZNode</name>
    <message>
        <source>Width:</source>
        <translation>Largeur :</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Hauteur :</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Pourcentage</translation>
    </message>
    <message>
        <source>Maximum Pixels</source>
        <translation>Maximum en pixels</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Scale by:</source>
        <translation>Échelle :</translation>
    </message>
</context>
<context>
    <name>RTTNode</name>
    <message>
        <source>Rotate right</source>
        <translation>Pivoter à droite</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Pivoter à gauche</translation>
    </message>
</context>
<context>
    <name>Representor</name>
    <message>
        <source>Large view</source>
        <translation>Grande vue</translation>
    </message>
</context>
<context>
    <name>TabLabel</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
</context>
<context>
    <name>UCSNode</name>
    <message>
        <source>Radius:</source>
        <translation>Rayon :</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>Opacité :</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Couleur :</translation>
    </message>
</context>
<context>
    <name>WMRNode</name>
    <message>
        <source>Size:</source>
        <translation>Taille :</translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation>Transparence :</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>Souligné</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Couleur du texte</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Draw the background</source>
        <translation>Dessiner l’arrière-plan</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Open the watermark file</source>
        <translation>Ouvrir le fichier du filigrane</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Étendre</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Décalage horizontal</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Décalage vertical</translation>
    </message>
    <message>
        <source>x:</source>
        <translation>x :</translation>
    </message>
    <message>
        <source>y:</source>
        <translation>y :</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Type :</translation>
    </message>
    <message>
        <source>Logo:</source>
        <translation>Logo :</translation>
    </message>
    <message>
        <source>Expand:</source>
        <translation>Étendre :</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Texte :</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Police :</translation>
    </message>
    <message>
        <source>Text color:</source>
        <translation>Couleur :</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Arrière-plan :</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Position :</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Can not open the image file:</source>
        <translation>Impossible d’ouvrir le fichier image :</translation>
    </message>
</context>
</TS>
