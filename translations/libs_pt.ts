<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>Avisos &amp;legais</translation>
    </message>
    <message>
        <source> Info</source>
        <translation> – Informações</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>Ocu&amp;ltar</translation>
    </message>
    <message>
        <source>Legal Notices</source>
        <translation>Avisos legais</translation>
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
        <translation>Avaliar este aplicativo</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Mais aplicativos</translation>
    </message>
    <message>
        <source>Contacts Us</source>
        <translation>Fale conosco</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>Página de suporte</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>Verificar atualizações</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartilhar</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Siga-nos</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppUpdateDialog</name>
    <message>
        <source>Check for updates on start</source>
        <translation>Verificar atualizações ao iniciar</translation>
    </message>
    <message>
        <source> Updates Notification</source>
        <translation> – Atualizações</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version of </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Há uma versão mais recente de </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Go to the updates web page?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>.&lt;br&gt;Ir para a página de atualizações?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the updates web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Você está usando a versão mais recente.&lt;br&gt;Ir mesmo assim para a página de atualizações?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ColorWidgetPopup</name>
    <message>
        <source>Colors</source>
        <translation>Cores</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>Cor %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>Folha de estilo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salvar como</translation>
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
        <translation>Pronto</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salvar</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>Salvar &amp;como…</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operações</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>&amp;Definir dicas</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Apl&amp;icar</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Redefinir</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Sobre</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;Solte as fotos aqui&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>Clique para abrir as fotos</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>Abrir as fotos</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Never show on start</source>
        <translation>&amp;Não mostrar ao iniciar</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> – Introdução</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageArea</name>
    <message>
        <source>Loading</source>
        <translation>Carregando</translation>
    </message>
    <message>
        <source>&lt;H1&gt;Fit to Window&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;Ajustado à janela&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagem</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageViewer</name>
    <message>
        <source>Open with Preview</source>
        <translation>Abrir no visualizador</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Reduce the picture</source>
        <translation>Reduzir a imagem</translation>
    </message>
    <message>
        <source>Enlarge the picture</source>
        <translation>Ampliar a imagem</translation>
    </message>
    <message>
        <source>Actual Pixels</source>
        <translation>Tamanho real</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>Fit To Window</source>
        <translation>Ajustar à janela</translation>
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
        <translation>Siga-nos</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>Siga-nos</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Join us and stay informed&lt;br&gt;about our</source>
        <translation>Siga-nos e fique por dentro&lt;br&gt;de</translation>
    </message>
    <message>
        <source>   1. FREE APP Actions&lt;br&gt;</source>
        <translation>   1. Promoções gratuitas&lt;br&gt;</translation>
    </message>
    <message>
        <source>   2. APP Updates&lt;br&gt;</source>
        <translation>   2. Atualizações&lt;br&gt;</translation>
    </message>
    <message>
        <source>   3. New APPs&lt;br&gt;</source>
        <translation>   3. Novos aplicativos&lt;br&gt;</translation>
    </message>
    <message>
        <source>   4. Important News&lt;br&gt;</source>
        <translation>   4. Notícias importantes&lt;br&gt;</translation>
    </message>
    <message>
        <source>   and more...</source>
        <translation>   e muito mais…</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abortar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>Sim para todos</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>Não para todos</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MovieLabel</name>
    <message>
        <source>Animation</source>
        <translation>Animação</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>Introduction</source>
        <translation>Introdução</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mais</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>Avaliar o aplicativo</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Mais aplicativos</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartilhar</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Siga-nos</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>Menu do programa</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateReminderDialog</name>
    <message>
        <source>&lt;br&gt;please rate it in the App Store.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;avalie o aplicativo na App Store.&lt;br&gt;Obrigado!</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>&amp;Avaliar agora</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Maybe Later</source>
        <translation>&amp;Talvez depois</translation>
    </message>
    <message>
        <source>&amp;Never Ask Me Again</source>
        <translation>&amp;Não perguntar de novo</translation>
    </message>
    <message>
        <source>Help Spread the Word about &quot;</source>
        <translation>Divulgue &quot;</translation>
    </message>
    <message>
        <source>If you like </source>
        <translation>Se você gosta de </translation>
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
        <translation>&amp;Fechar</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share </source>
        <translation>Compartilhar </translation>
    </message>
    <message>
        <source>If you like&lt;br&gt;&quot;</source>
        <translation>Se você gosta de&lt;br&gt;&quot;</translation>
    </message>
    <message>
        <source>&lt;br&gt;please share it with your friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;compartilhe com seus amigos.&lt;br&gt;Obrigado!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>Compartilhar</translation>
    </message>
    <message>
        <source>&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;compartilhe com seus amigos.&lt;br&gt;Obrigado!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::UpdateCheck</name>
    <message>
        <source> Updates Check Error</source>
        <translation> – Erro ao verificar atualizações</translation>
    </message>
    <message>
        <source>&lt;H3&gt;No internet connection is available,&lt;br&gt;please, check the firewall settings and make sure that&lt;br&gt;you are not using the the internet connection via the proxy server.&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Não há conexão com a Internet.&lt;br&gt;Verifique as configurações do firewall e certifique-se&lt;br&gt;de que a conexão não passa por um servidor proxy.&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>StepButtons</name>
    <message>
        <source>Next photo</source>
        <translation>Próxima foto</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>Foto anterior</translation>
    </message>
</context>
</TS>
