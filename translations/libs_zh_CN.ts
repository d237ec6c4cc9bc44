<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;本程序使用：&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>为此应用评分</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>更多应用</translation>
    </message>
    <message>
        <source>Contacts Us</source>
        <translation>联系我们</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>支持页面</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>检查更新</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppUpdateDialog</name>
    <message>
        <source>Check for updates on start</source>
        <translation>启动时检查更新</translation>
    </message>
    <message>
        <source> Updates Notification</source>
        <translation> 更新通知</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version of </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;有新版本可用：</translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Go to the updates web page?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>。&lt;br&gt;是否前往更新网页？&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the updates web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;您使用的已是最新版本。&lt;br&gt;仍要前往更新网页吗？&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ColorWidgetPopup</name>
    <message>
        <source>Colors</source>
        <translation>颜色表</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>颜色 %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;将照片拖放到这里&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>点击打开照片</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>打开照片</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageArea</name>
    <message>
        <source>Loading</source>
        <translation>正在加载</translation>
    </message>
    <message>
        <source>&lt;H1&gt;Fit to Window&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;适合窗口&lt;/H1&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageViewer</name>
    <message>
        <source>Open with Preview</source>
        <translation>在查看器中打开</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Reduce the picture</source>
        <translation>缩小图像</translation>
    </message>
    <message>
        <source>Enlarge the picture</source>
        <translation>放大图像</translation>
    </message>
    <message>
        <source>Actual Pixels</source>
        <translation>实际像素</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>Fit To Window</source>
        <translation>适合窗口</translation>
    </message>
</context>
<context>
    <name>QMWidgets::InputDialog</name>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>全部是</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>全部否</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MovieLabel</name>
    <message>
        <source>Animation</source>
        <translation>动画</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>Introduction</source>
        <translation>简介</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>为应用评分</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>更多应用</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>分享</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>关注我们</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>程序菜单</translation>
    </message>
</context>
<context>
    <name>QMWidgets::UpdateCheck</name>
    <message>
        <source> Updates Check Error</source>
        <translation> 检查更新出错</translation>
    </message>
    <message>
        <source>&lt;H3&gt;No internet connection is available,&lt;br&gt;please, check the firewall settings and make sure that&lt;br&gt;you are not using the the internet connection via the proxy server.&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;没有可用的互联网连接。&lt;br&gt;请检查防火墙设置，并确认&lt;br&gt;连接没有经过代理服务器。&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>StepButtons</name>
    <message>
        <source>Next photo</source>
        <translation>下一张照片</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>上一张照片</translation>
    </message>
</context>
</TS>
