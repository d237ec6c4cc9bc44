<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>Note &amp;legali</translation>
    </message>
    <message>
        <source> Info</source>
        <translation> – Informazioni</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Nascondi</translation>
    </message>
    <message>
        <source>Legal Notices</source>
        <translation>Note legali</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Questo programma utilizza:&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>Valuta questa app</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Altre app</translation>
    </message>
    <message>
        <source>Contacts Us</source>
        <translation>Contattaci</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>Pagina di assistenza</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>Cerca aggiornamenti</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Condividi</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Seguici</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppUpdateDialog</name>
    <message>
        <source>Check for updates on start</source>
        <translation>Cerca aggiornamenti all’avvio</translation>
    </message>
    <message>
        <source> Updates Notification</source>
        <translation> – Aggiornamenti</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version of </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;È disponibile una nuova versione di </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Go to the updates web page?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>.&lt;br&gt;Andare alla pagina degli aggiornamenti?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the updates web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Stai usando la versione più recente.&lt;br&gt;Andare comunque alla pagina degli aggiornamenti?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ColorWidgetPopup</name>
    <message>
        <source>Colors</source>
        <translation>Colori</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>Colore %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>Foglio di stile</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salva con nome</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>Editor di stili CSS</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Apri…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>Salva con &amp;nome…</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operazioni</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>&amp;Imposta info</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>App&amp;lica</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Reimposta</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Informazioni</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;Trascina qui le foto&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>Fai clic per aprire le foto</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>Apri le foto</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Never show on start</source>
        <translation>&amp;Non mostrare all’avvio</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> – Introduzione</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageArea</name>
    <message>
        <source>Loading</source>
        <translation>Caricamento</translation>
    </message>
    <message>
        <source>&lt;H1&gt;Fit to Window&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;Adattato alla finestra&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Immagine</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageViewer</name>
    <message>
        <source>Open with Preview</source>
        <translation>Apri nel visualizzatore</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Reduce the picture</source>
        <translation>Riduci l’immagine</translation>
    </message>
    <message>
        <source>Enlarge the picture</source>
        <translation>Ingrandisci l’immagine</translation>
    </message>
    <message>
        <source>Actual Pixels</source>
        <translation>Dimensioni reali</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>Fit To Window</source>
        <translation>Adatta alla finestra</translation>
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
        <translation>Seguici</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>Seguici</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Join us and stay informed&lt;br&gt;about our</source>
        <translation>Seguici e resta informato&lt;br&gt;su</translation>
    </message>
    <message>
        <source>   1. FREE APP Actions&lt;br&gt;</source>
        <translation>   1. Offerte gratuite&lt;br&gt;</translation>
    </message>
    <message>
        <source>   2. APP Updates&lt;br&gt;</source>
        <translation>   2. Aggiornamenti&lt;br&gt;</translation>
    </message>
    <message>
        <source>   3. New APPs&lt;br&gt;</source>
        <translation>   3. Nuove app&lt;br&gt;</translation>
    </message>
    <message>
        <source>   4. Important News&lt;br&gt;</source>
        <translation>   4. Novità importanti&lt;br&gt;</translation>
    </message>
    <message>
        <source>   and more...</source>
        <translation>   e altro ancora…</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Interrompi</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>Sì a tutti</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>No a tutti</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MovieLabel</name>
    <message>
        <source>Animation</source>
        <translation>Animazione</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>Introduction</source>
        <translation>Introduzione</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>Valuta l’app</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Altre app</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Condividi</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Seguici</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>Menu del programma</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateReminderDialog</name>
    <message>
        <source>&lt;br&gt;please rate it in the App Store.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;valuta l’app nell’App Store.&lt;br&gt;Grazie!</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>&amp;Valuta ora</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Maybe Later</source>
        <translation>&amp;Forse più tardi</translation>
    </message>
    <message>
        <source>&amp;Never Ask Me Again</source>
        <translation>&amp;Non chiedere più</translation>
    </message>
    <message>
        <source>Help Spread the Word about &quot;</source>
        <translation>Fai conoscere &quot;</translation>
    </message>
    <message>
        <source>If you like </source>
        <translation>Se ti piace </translation>
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
        <translation>&amp;Chiudi</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share </source>
        <translation>Condividi </translation>
    </message>
    <message>
        <source>If you like&lt;br&gt;&quot;</source>
        <translation>Se ti piace&lt;br&gt;&quot;</translation>
    </message>
    <message>
        <source>&lt;br&gt;please share it with your friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;parlane con gli amici.&lt;br&gt;Grazie!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>Condividi</translation>
    </message>
    <message>
        <source>&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;parlane con gli amici.&lt;br&gt;Grazie!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::UpdateCheck</name>
    <message>
        <source> Updates Check Error</source>
        <translation> – Errore nella ricerca di aggiornamenti</translation>
    </message>
    <message>
        <source>&lt;H3&gt;No internet connection is available,&lt;br&gt;please, check the firewall settings and make sure that&lt;br&gt;you are not using the the internet connection via the proxy server.&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Nessuna connessione a Internet disponibile.&lt;br&gt;Controlla le impostazioni del firewall e assicurati che&lt;br&gt;la connessione non passi per un server proxy.&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>StepButtons</name>
    <message>
        <source>Next photo</source>
        <translation>Foto successiva</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>Foto precedente</translation>
    </message>
</context>
</TS>
