<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>Avisos &amp;legales</translation>
    </message>
    <message>
        <source> Info</source>
        <translation> – Información</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Ocultar</translation>
    </message>
    <message>
        <source>Legal Notices</source>
        <translation>Avisos legales</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Este programa utiliza:&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>Valorar esta aplicación</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Más aplicaciones</translation>
    </message>
    <message>
        <source>Contacts Us</source>
        <translation>Contacto</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>Página de soporte</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Síganos</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppUpdateDialog</name>
    <message>
        <source>Check for updates on start</source>
        <translation>Buscar actualizaciones al iniciar</translation>
    </message>
    <message>
        <source> Updates Notification</source>
        <translation> – Actualizaciones</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version of </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Hay una versión más reciente de </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Go to the updates web page?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>.&lt;br&gt;¿Ir a la página de actualizaciones?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the updates web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Está usando la última versión.&lt;br&gt;¿Ir de todos modos a la página de actualizaciones?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
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
        <translation>Colores</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>Color %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>Hoja de estilo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>Editor de estilos CSS</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>Guardar &amp;como…</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operaciones</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>&amp;Poner información</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Apl&amp;icar</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>A&amp;cerca de</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;Suelte las fotos aquí&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>Abrir las fotos</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>Abrir las fotos</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Never show on start</source>
        <translation>&amp;No mostrar al iniciar</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> – Introducción</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageArea</name>
    <message>
        <source>Loading</source>
        <translation>Cargando</translation>
    </message>
    <message>
        <source>&lt;H1&gt;Fit to Window&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;Ajustado a la ventana&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageViewer</name>
    <message>
        <source>Open with Preview</source>
        <translation>Abrir en el visor</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Reduce the picture</source>
        <translation>Reducir la imagen</translation>
    </message>
    <message>
        <source>Enlarge the picture</source>
        <translation>Ampliar la imagen</translation>
    </message>
    <message>
        <source>Actual Pixels</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Fit To Window</source>
        <translation>Ajustar a la ventana</translation>
    </message>
</context>
<context>
    <name>QMWidgets::InputDialog</name>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>Síganos</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>Síganos</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Join us and stay informed&lt;br&gt;about our</source>
        <translation>Síganos y manténgase informado&lt;br&gt;sobre</translation>
    </message>
    <message>
        <source>   1. FREE APP Actions&lt;br&gt;</source>
        <translation>   1. Promociones gratuitas&lt;br&gt;</translation>
    </message>
    <message>
        <source>   2. APP Updates&lt;br&gt;</source>
        <translation>   2. Actualizaciones&lt;br&gt;</translation>
    </message>
    <message>
        <source>   3. New APPs&lt;br&gt;</source>
        <translation>   3. Aplicaciones nuevas&lt;br&gt;</translation>
    </message>
    <message>
        <source>   4. Important News&lt;br&gt;</source>
        <translation>   4. Noticias importantes&lt;br&gt;</translation>
    </message>
    <message>
        <source>   and more...</source>
        <translation>   y mucho más…</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Anular</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>Sí a todo</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>No a todo</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MovieLabel</name>
    <message>
        <source>Animation</source>
        <translation>Animación</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>Introduction</source>
        <translation>Introducción</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>Valorar la aplicación</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Más aplicaciones</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Síganos</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>Menú del programa</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateReminderDialog</name>
    <message>
        <source>&lt;br&gt;please rate it in the App Store.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;valore la aplicación en la App Store.&lt;br&gt;¡Gracias!</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>&amp;Valorar ahora</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Maybe Later</source>
        <translation>&amp;Quizá más tarde</translation>
    </message>
    <message>
        <source>&amp;Never Ask Me Again</source>
        <translation>&amp;No volver a preguntar</translation>
    </message>
    <message>
        <source>Help Spread the Word about &quot;</source>
        <translation>Dé a conocer &quot;</translation>
    </message>
    <message>
        <source>If you like </source>
        <translation>Si le gusta </translation>
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
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share </source>
        <translation>Compartir </translation>
    </message>
    <message>
        <source>If you like&lt;br&gt;&quot;</source>
        <translation>Si le gusta&lt;br&gt;&quot;</translation>
    </message>
    <message>
        <source>&lt;br&gt;please share it with your friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;compártalo con sus amigos.&lt;br&gt;¡Gracias!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
    <message>
        <source>&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;compártalo con sus amigos.&lt;br&gt;¡Gracias!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::UpdateCheck</name>
    <message>
        <source> Updates Check Error</source>
        <translation> – Error al buscar actualizaciones</translation>
    </message>
    <message>
        <source>&lt;H3&gt;No internet connection is available,&lt;br&gt;please, check the firewall settings and make sure that&lt;br&gt;you are not using the the internet connection via the proxy server.&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;No hay conexión a Internet.&lt;br&gt;Compruebe los ajustes del cortafuegos y asegúrese de que&lt;br&gt;la conexión no pasa por un servidor proxy.&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>StepButtons</name>
    <message>
        <source>Next photo</source>
        <translation>Foto siguiente</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>Foto anterior</translation>
    </message>
</context>
</TS>
