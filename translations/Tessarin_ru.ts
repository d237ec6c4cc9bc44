<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>Open Destination Folder When Done</source>
        <translation>Открыть папку с результатом по завершении</translation>
    </message>
    <message>
        <source>Quiality:</source>
        <translation>Качество:</translation>
    </message>
    <message>
        <source> Settings</source>
        <translation> — настройки</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Формат:</translation>
    </message>
    <message>
        <source>Output Format</source>
        <translation>Формат вывода</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Нечётные</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Чётные</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>New Name:</source>
        <translation>Новое имя:</translation>
    </message>
    <message>
        <source>Numbers:</source>
        <translation>Номера:</translation>
    </message>
</context>
<context>
    <name>BCSNode</name>
    <message>
        <source>Brightness:</source>
        <translation>Яркость:</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Контраст:</translation>
    </message>
    <message>
        <source>Saturation:</source>
        <translation>Насыщенность:</translation>
    </message>
</context>
<context>
    <name>BINNode</name>
    <message>
        <source>Threshold:</source>
        <translation>Порог:</translation>
    </message>
</context>
<context>
    <name>BLRNode</name>
    <message>
        <source>Blur:</source>
        <translation>Размытие:</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source> Batch Process</source>
        <translation> — пакетная обработка</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H1&gt;Please, wait...&lt;/H1&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H1&gt;Подождите…&lt;/H1&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>CRPNode</name>
    <message>
        <source>Left:</source>
        <translation>Слева:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Справа:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Сверху:</translation>
    </message>
    <message>
        <source>Buttom:</source>
        <translation>Снизу:</translation>
    </message>
</context>
<context>
    <name>Creator</name>
    <message>
        <source>Show one photo</source>
        <translation>Показать одно фото</translation>
    </message>
</context>
<context>
    <name>CreatorDropArea</name>
    <message>
        <source>Click to open the photos</source>
        <translation>Открыть фотографии</translation>
    </message>
    <message>
        <source>&lt;H2&gt;Drop the photos here&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;Перетащите фото сюда&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>Открыть фотографии</translation>
    </message>
</context>
<context>
    <name>DirectionsWidget</name>
    <message>
        <source>Top left</source>
        <translation>Сверху слева</translation>
    </message>
    <message>
        <source>Top middle</source>
        <translation>Сверху по центру</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Сверху справа</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Снизу слева</translation>
    </message>
    <message>
        <source>Bottom middle</source>
        <translation>Снизу по центру</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Снизу справа</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>Посередине слева</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>В центре</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>Посередине справа</translation>
    </message>
</context>
<context>
    <name>FRMNode</name>
    <message>
        <source>Width:</source>
        <translation>Ширина:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Цвет:</translation>
    </message>
</context>
<context>
    <name>FavoritesDeleteDlg</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Отмена</translation>
    </message>
    <message>
        <source>Delete the flow</source>
        <translation>Удаление цепочки</translation>
    </message>
    <message>
        <source>Flows</source>
        <translation>Цепочки</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Удалить</translation>
    </message>
</context>
<context>
    <name>FlowPanel</name>
    <message>
        <source>Remove selected node</source>
        <translation>Удалить выбранную операцию</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Операции</translation>
    </message>
    <message>
        <source>Add node</source>
        <translation>Добавить операцию</translation>
    </message>
    <message>
        <source>Save the resulted photos to the separate folder</source>
        <translation>Сохранить обработанные фото в отдельную папку</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>О&amp;чистить</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Сохранить…</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>&amp;Удалить…</translation>
    </message>
    <message>
        <source>&amp;Go To Flows Location</source>
        <translation>&amp;Открыть папку цепочек</translation>
    </message>
    <message>
        <source>Save Flow</source>
        <translation>Сохранение цепочки</translation>
    </message>
    <message>
        <source>Flow&apos;s Name:</source>
        <translation>Имя цепочки:</translation>
    </message>
    <message>
        <source>Can not create the flow without name</source>
        <translation>Нельзя создать цепочку без имени</translation>
    </message>
    <message>
        <source>The flow the with name &quot;</source>
        <translation>Цепочка с именем &quot;</translation>
    </message>
    <message>
        <source>&quot; already exists.
Overwrite?</source>
        <translation>&quot; уже существует.
Перезаписать?</translation>
    </message>
    <message>
        <source>Remove the flow:
 &quot;</source>
        <translation>Удалить цепочку:
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
        <translation>Слева:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Справа:</translation>
    </message>
</context>
<context>
    <name>IconWidget</name>
    <message>
        <source>Photos</source>
        <translation>Фотографии</translation>
    </message>
</context>
<context>
    <name>InitLabel</name>
    <message>
        <source>Add an operation</source>
        <translation>Добавить операцию</translation>
    </message>
    <message>
        <source>Press the round + and pick a step.</source>
        <translation>Нажмите круглый + и выберите шаг.</translation>
    </message>
    <message>
        <source>Steps run from left to right.</source>
        <translation>Шаги выполняются слева направо.</translation>
    </message>
</context>
<context>
    <name>MRRNode</name>
    <message>
        <source>Mirror horizontally</source>
        <translation>Отразить по горизонтали</translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation>Отразить по вертикали</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
</context>
<context>
    <name>NodesTabBar</name>
    <message>
        <source>Earlier operations</source>
        <translation>Предыдущие операции</translation>
    </message>
    <message>
        <source>Later operations</source>
        <translation>Следующие операции</translation>
    </message>
</context>
<context>
    <name>RGBNode</name>
    <message>
        <source>Red&lt;-&gt;Blue</source>
        <translation>Красный&lt;-&gt;Синий</translation>
    </message>
    <message>
        <source>Red&lt;-&gt;Green</source>
        <translation>Красный&lt;-&gt;Зелёный</translation>
    </message>
    <message>
        <source>Green&lt;-&gt;Blue</source>
        <translation>Зелёный&lt;-&gt;Синий</translation>
    </message>
</context>
<context>
    <name>RSZNode</name>
    <message>
        <source>Width:</source>
        <translation>Ширина:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Высота:</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Проценты</translation>
    </message>
    <message>
        <source>Maximum Pixels</source>
        <translation>Не более, пикс.</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Пиксели</translation>
    </message>
    <message>
        <source>Scale by:</source>
        <translation>Масштаб:</translation>
    </message>
</context>
<context>
    <name>RTTNode</name>
    <message>
        <source>Rotate right</source>
        <translation>Повернуть вправо</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Повернуть влево</translation>
    </message>
</context>
<context>
    <name>Representor</name>
    <message>
        <source>Large view</source>
        <translation>Крупный просмотр</translation>
    </message>
</context>
<context>
    <name>TabLabel</name>
    <message>
        <source>Preview</source>
        <translation>Просмотр</translation>
    </message>
</context>
<context>
    <name>UCSNode</name>
    <message>
        <source>Radius:</source>
        <translation>Радиус:</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>Непрозрачность:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Цвет:</translation>
    </message>
</context>
<context>
    <name>WMRNode</name>
    <message>
        <source>Size:</source>
        <translation>Размер:</translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation>Прозрачность:</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Полужирный</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Курсив</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>Подчёркнутый</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Цвет текста</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Фон</translation>
    </message>
    <message>
        <source>Draw the background</source>
        <translation>Рисовать фон</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>Open the watermark file</source>
        <translation>Открыть файл водяного знака</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Растянуть</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Смещение по горизонтали</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Смещение по вертикали</translation>
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
        <translation>Вид:</translation>
    </message>
    <message>
        <source>Logo:</source>
        <translation>Логотип:</translation>
    </message>
    <message>
        <source>Expand:</source>
        <translation>Растянуть:</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Текст:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Шрифт:</translation>
    </message>
    <message>
        <source>Text color:</source>
        <translation>Цвет текста:</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Фон:</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Положение:</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Can not open the image file:</source>
        <translation>Не удаётся открыть файл изображения:</translation>
    </message>
</context>
</TS>
