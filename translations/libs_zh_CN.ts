<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>法律声明(&amp;L)</translation>
    </message>
    <message>
        <source> Info</source>
        <translation> 信息</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>隐藏(&amp;H)</translation>
    </message>
    <message>
        <source>Legal Notices</source>
        <translation>法律声明</translation>
    </message>
</context>
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
    <message>
        <source>Share</source>
        <translation>分享</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>关注我们</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
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
        <translation>&lt;CENTER&gt;&lt;H2&gt;发现新版本 </translation>
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
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>样式表</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>CSS 样式编辑器</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开…(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>另存为…(&amp;A)</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>设置信息(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>重置(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
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
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Never show on start</source>
        <translation>启动时不再显示(&amp;N)</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> 简介</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
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
    <message>
        <source>Picture</source>
        <translation>图像</translation>
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
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>关注我们</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>关注我们</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Join us and stay informed&lt;br&gt;about our</source>
        <translation>关注我们，及时了解&lt;br&gt;以下消息</translation>
    </message>
    <message>
        <source>   1. FREE APP Actions&lt;br&gt;</source>
        <translation>   1. 免费应用活动&lt;br&gt;</translation>
    </message>
    <message>
        <source>   2. APP Updates&lt;br&gt;</source>
        <translation>   2. 应用更新&lt;br&gt;</translation>
    </message>
    <message>
        <source>   3. New APPs&lt;br&gt;</source>
        <translation>   3. 新应用&lt;br&gt;</translation>
    </message>
    <message>
        <source>   4. Important News&lt;br&gt;</source>
        <translation>   4. 重要新闻&lt;br&gt;</translation>
    </message>
    <message>
        <source>   and more...</source>
        <translation>   以及更多…</translation>
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
    <name>QMWidgets::RateReminderDialog</name>
    <message>
        <source>&lt;br&gt;please rate it in the App Store.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;请在 App Store 中评分。&lt;br&gt;谢谢！</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>立即评分(&amp;R)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Maybe Later</source>
        <translation>以后再说(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Never Ask Me Again</source>
        <translation>不再询问(&amp;N)</translation>
    </message>
    <message>
        <source>Help Spread the Word about &quot;</source>
        <translation>推荐 &quot;</translation>
    </message>
    <message>
        <source>If you like </source>
        <translation>如果您喜欢 </translation>
    </message>
    <message>
        <source>-App,</source>
        <translation>，</translation>
    </message>
</context>
<context>
    <name>QMWidgets::SocialRows</name>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share </source>
        <translation>分享 </translation>
    </message>
    <message>
        <source>If you like&lt;br&gt;&quot;</source>
        <translation>如果您喜欢&lt;br&gt;&quot;</translation>
    </message>
    <message>
        <source>&lt;br&gt;please share it with your friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;请分享给朋友。&lt;br&gt;谢谢！</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>分享</translation>
    </message>
    <message>
        <source>&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;请分享给朋友。&lt;br&gt;谢谢！</translation>
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
