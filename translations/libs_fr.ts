<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Ce programme utilise :&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>Noter cette application</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Autres applications</translation>
    </message>
    <message>
        <source>Contacts Us</source>
        <translation>Nous contacter</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>Page d’assistance</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>Rechercher les mises à jour</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppUpdateDialog</name>
    <message>
        <source>Check for updates on start</source>
        <translation>Rechercher les mises à jour au démarrage</translation>
    </message>
    <message>
        <source> Updates Notification</source>
        <translation> – Mises à jour</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version of </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Une version plus récente de </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Go to the updates web page?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation> est disponible.&lt;br&gt;Ouvrir la page des mises à jour ?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the updates web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Vous utilisez la dernière version.&lt;br&gt;Ouvrir tout de même la page des mises à jour ?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ColorWidgetPopup</name>
    <message>
        <source>Colors</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>Couleur %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;Déposez les photos ici&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>Cliquer pour ouvrir des photos</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>Ouvrir les photos</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageArea</name>
    <message>
        <source>Loading</source>
        <translation>Chargement</translation>
    </message>
    <message>
        <source>&lt;H1&gt;Fit to Window&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;Ajusté à la fenêtre&lt;/H1&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageViewer</name>
    <message>
        <source>Open with Preview</source>
        <translation>Ouvrir dans la visionneuse</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Reduce the picture</source>
        <translation>Réduire l’image</translation>
    </message>
    <message>
        <source>Enlarge the picture</source>
        <translation>Agrandir l’image</translation>
    </message>
    <message>
        <source>Actual Pixels</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Fit To Window</source>
        <translation>Ajuster à la fenêtre</translation>
    </message>
</context>
<context>
    <name>QMWidgets::InputDialog</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>Oui pour tout</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>Non pour tout</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MovieLabel</name>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>Introduction</source>
        <translation>Présentation</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>Noter l’application</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Autres applications</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Nous suivre</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>Menu du programme</translation>
    </message>
</context>
<context>
    <name>QMWidgets::UpdateCheck</name>
    <message>
        <source> Updates Check Error</source>
        <translation> – Erreur de recherche de mises à jour</translation>
    </message>
    <message>
        <source>&lt;H3&gt;No internet connection is available,&lt;br&gt;please, check the firewall settings and make sure that&lt;br&gt;you are not using the the internet connection via the proxy server.&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Aucune connexion Internet n’est disponible.&lt;br&gt;Vérifiez les réglages du pare-feu et assurez-vous&lt;br&gt;que la connexion ne passe pas par un serveur proxy.&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>StepButtons</name>
    <message>
        <source>Next photo</source>
        <translation>Photo suivante</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>Photo précédente</translation>
    </message>
</context>
</TS>
