<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>&amp;Правовые сведения</translation>
    </message>
    <message>
        <source> Info</source>
        <translation> — сведения</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;ОК</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Скрыть</translation>
    </message>
    <message>
        <source>Legal Notices</source>
        <translation>Правовые сведения</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;В программе используется:&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>Оценить приложение</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Другие приложения</translation>
    </message>
    <message>
        <source>Contacts Us</source>
        <translation>Связаться с нами</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>Страница поддержки</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>Проверить обновления</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Присоединяйтесь</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppUpdateDialog</name>
    <message>
        <source>Check for updates on start</source>
        <translation>Проверять обновления при запуске</translation>
    </message>
    <message>
        <source> Updates Notification</source>
        <translation> — обновления</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version of </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Доступна новая версия </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Go to the updates web page?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>.&lt;br&gt;Перейти на страницу обновлений?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the updates web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;У вас самая новая версия.&lt;br&gt;Всё равно перейти на страницу обновлений?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ColorWidgetPopup</name>
    <message>
        <source>Colors</source>
        <translation>Цвета</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>Цвет %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>Таблица стилей</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Сохранить как</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>Редактор стилей CSS</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Открыть…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Сохранить</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>Сохранить &amp;как…</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Операции</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>&amp;Подсказки</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>П&amp;рименить</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>С&amp;бросить</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;О программе</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;Перетащите фото сюда&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>Открыть фотографии</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>Открыть фотографии</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Never show on start</source>
        <translation>&amp;Не показывать при запуске</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> — введение</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageArea</name>
    <message>
        <source>Loading</source>
        <translation>Загрузка</translation>
    </message>
    <message>
        <source>&lt;H1&gt;Fit to Window&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;По размеру окна&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Изображение</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageViewer</name>
    <message>
        <source>Open with Preview</source>
        <translation>Открыть в просмотре</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Reduce the picture</source>
        <translation>Уменьшить изображение</translation>
    </message>
    <message>
        <source>Enlarge the picture</source>
        <translation>Увеличить изображение</translation>
    </message>
    <message>
        <source>Actual Pixels</source>
        <translation>Реальный размер</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Fit To Window</source>
        <translation>По размеру окна</translation>
    </message>
</context>
<context>
    <name>QMWidgets::InputDialog</name>
    <message>
        <source>Ok</source>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>Присоединяйтесь</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>Присоединяйтесь</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Join us and stay informed&lt;br&gt;about our</source>
        <translation>Присоединяйтесь и узнавайте&lt;br&gt;первыми про</translation>
    </message>
    <message>
        <source>   1. FREE APP Actions&lt;br&gt;</source>
        <translation>   1. Бесплатные акции&lt;br&gt;</translation>
    </message>
    <message>
        <source>   2. APP Updates&lt;br&gt;</source>
        <translation>   2. Обновления программ&lt;br&gt;</translation>
    </message>
    <message>
        <source>   3. New APPs&lt;br&gt;</source>
        <translation>   3. Новые программы&lt;br&gt;</translation>
    </message>
    <message>
        <source>   4. Important News&lt;br&gt;</source>
        <translation>   4. Важные новости&lt;br&gt;</translation>
    </message>
    <message>
        <source>   and more...</source>
        <translation>   и многое другое…</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Прервать</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>Да для всех</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>Нет для всех</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MovieLabel</name>
    <message>
        <source>Animation</source>
        <translation>Анимация</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>Introduction</source>
        <translation>Введение</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>Оценить приложение</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Другие приложения</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Присоединяйтесь</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>Меню программы</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateReminderDialog</name>
    <message>
        <source>&lt;br&gt;please rate it in the App Store.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;оцените программу в App Store.&lt;br&gt;Спасибо!</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>&amp;Оценить сейчас</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Maybe Later</source>
        <translation>&amp;Может быть, позже</translation>
    </message>
    <message>
        <source>&amp;Never Ask Me Again</source>
        <translation>&amp;Больше не спрашивать</translation>
    </message>
    <message>
        <source>Help Spread the Word about &quot;</source>
        <translation>Расскажите другим о &quot;</translation>
    </message>
    <message>
        <source>If you like </source>
        <translation>Если вам нравится </translation>
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
        <translation>&amp;Закрыть</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share </source>
        <translation>Поделиться: </translation>
    </message>
    <message>
        <source>If you like&lt;br&gt;&quot;</source>
        <translation>Если вам нравится&lt;br&gt;&quot;</translation>
    </message>
    <message>
        <source>&lt;br&gt;please share it with your friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;расскажите о программе друзьям.&lt;br&gt;Спасибо!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
    <message>
        <source>&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;расскажите о программе друзьям.&lt;br&gt;Спасибо!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::UpdateCheck</name>
    <message>
        <source> Updates Check Error</source>
        <translation> — ошибка проверки обновлений</translation>
    </message>
    <message>
        <source>&lt;H3&gt;No internet connection is available,&lt;br&gt;please, check the firewall settings and make sure that&lt;br&gt;you are not using the the internet connection via the proxy server.&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Нет подключения к интернету.&lt;br&gt;Проверьте настройки брандмауэра и убедитесь,&lt;br&gt;что подключение идёт не через прокси-сервер.&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>StepButtons</name>
    <message>
        <source>Next photo</source>
        <translation>Следующее фото</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>Предыдущее фото</translation>
    </message>
</context>
</TS>
