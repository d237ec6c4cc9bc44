<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>&amp;Mentions légales</translation>
    </message>
    <message>
        <source> Info</source>
        <translation> – Informations</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Masquer</translation>
    </message>
    <message>
        <source>Legal Notices</source>
        <translation>Mentions légales</translation>
    </message>
</context>
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
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Nous suivre</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
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
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>Feuille de style</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>Éditeur de styles CSS</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Opérations</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>&amp;Infobulles</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>A&amp;ppliquer</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Réinitialiser</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
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
        <translation>Ouvrir des photos</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>Ouvrir les photos</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Never show on start</source>
        <translation>&amp;Ne plus afficher au démarrage</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> – Présentation</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
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
    <message>
        <source>Picture</source>
        <translation>Image</translation>
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
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>Nous suivre</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>Nous suivre</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Join us and stay informed&lt;br&gt;about our</source>
        <translation>Suivez-nous et restez informé&lt;br&gt;de nos</translation>
    </message>
    <message>
        <source>   1. FREE APP Actions&lt;br&gt;</source>
        <translation>   1. Offres gratuites&lt;br&gt;</translation>
    </message>
    <message>
        <source>   2. APP Updates&lt;br&gt;</source>
        <translation>   2. Mises à jour&lt;br&gt;</translation>
    </message>
    <message>
        <source>   3. New APPs&lt;br&gt;</source>
        <translation>   3. Nouvelles applications&lt;br&gt;</translation>
    </message>
    <message>
        <source>   4. Important News&lt;br&gt;</source>
        <translation>   4. Nouvelles importantes&lt;br&gt;</translation>
    </message>
    <message>
        <source>   and more...</source>
        <translation>   et plus encore…</translation>
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
    <name>QMWidgets::RateReminderDialog</name>
    <message>
        <source>&lt;br&gt;please rate it in the App Store.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;notez l’application dans l’App Store.&lt;br&gt;Merci !</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>N&amp;oter maintenant</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Maybe Later</source>
        <translation>&amp;Plus tard</translation>
    </message>
    <message>
        <source>&amp;Never Ask Me Again</source>
        <translation>&amp;Ne plus me demander</translation>
    </message>
    <message>
        <source>Help Spread the Word about &quot;</source>
        <translation>Faites connaître &quot;</translation>
    </message>
    <message>
        <source>If you like </source>
        <translation>Si vous aimez </translation>
    </message>
    <message>
        <source>-App,</source>
        <translation>,</translation>
    </message>
</context>
<context>
    <name>QMWidgets::SocialRows</name>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share </source>
        <translation>Partager </translation>
    </message>
    <message>
        <source>If you like&lt;br&gt;&quot;</source>
        <translation>Si vous aimez&lt;br&gt;&quot;</translation>
    </message>
    <message>
        <source>&lt;br&gt;please share it with your friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;parlez-en à vos amis.&lt;br&gt;Merci !</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
    <message>
        <source>&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;parlez-en à vos amis.&lt;br&gt;Merci !</translation>
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
