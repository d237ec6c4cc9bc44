<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>Open Destination Folder When Done</source>
        <translation>完成后打开目标文件夹</translation>
    </message>
    <message>
        <source>Quiality:</source>
        <translation>质量：</translation>
    </message>
    <message>
        <source> Settings</source>
        <translation> 设置</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>格式：</translation>
    </message>
    <message>
        <source>Output Format</source>
        <translation>输出格式</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>奇数</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>偶数</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>New Name:</source>
        <translation>新名称：</translation>
    </message>
    <message>
        <source>Numbers:</source>
        <translation>编号：</translation>
    </message>
</context>
<context>
    <name>BCSNode</name>
    <message>
        <source>Brightness:</source>
        <translation>亮度：</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>对比度：</translation>
    </message>
    <message>
        <source>Saturation:</source>
        <translation>饱和度：</translation>
    </message>
</context>
<context>
    <name>BINNode</name>
    <message>
        <source>Threshold:</source>
        <translation>阈值：</translation>
    </message>
</context>
<context>
    <name>BLRNode</name>
    <message>
        <source>Blur:</source>
        <translation>模糊：</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source> Batch Process</source>
        <translation> 批处理</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H1&gt;Please, wait...&lt;/H1&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H1&gt;请稍候…&lt;/H1&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>CRPNode</name>
    <message>
        <source>Left:</source>
        <translation>左：</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>右：</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>上：</translation>
    </message>
    <message>
        <source>Buttom:</source>
        <translation>下：</translation>
    </message>
</context>
<context>
    <name>Creator</name>
    <message>
        <source>Show one photo</source>
        <translation>显示单张照片</translation>
    </message>
</context>
<context>
    <name>CreatorDropArea</name>
    <message>
        <source>Click to open the photos</source>
        <translation>点击打开照片</translation>
    </message>
    <message>
        <source>&lt;H2&gt;Drop the photos here&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;将照片拖放到这里&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>打开照片</translation>
    </message>
</context>
<context>
    <name>DirectionsWidget</name>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top middle</source>
        <translation>中上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom middle</source>
        <translation>中下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>左中</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>正中</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>右中</translation>
    </message>
</context>
<context>
    <name>FRMNode</name>
    <message>
        <source>Width:</source>
        <translation>宽度：</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>颜色：</translation>
    </message>
</context>
<context>
    <name>FavoritesDeleteDlg</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Delete the flow</source>
        <translation>删除流程</translation>
    </message>
    <message>
        <source>Flows</source>
        <translation>流程</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
</context>
<context>
    <name>FlowPanel</name>
    <message>
        <source>Remove selected node</source>
        <translation>移除所选操作</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Add node</source>
        <translation>添加操作</translation>
    </message>
    <message>
        <source>Save the resulted photos to the separate folder</source>
        <translation>将处理后的照片保存到单独的文件夹</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>清空(&amp;C)</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>保存…(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>删除…(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Go To Flows Location</source>
        <translation>打开流程文件夹(&amp;G)</translation>
    </message>
    <message>
        <source>Save Flow</source>
        <translation>保存流程</translation>
    </message>
    <message>
        <source>Flow&apos;s Name:</source>
        <translation>流程名称：</translation>
    </message>
    <message>
        <source>Can not create the flow without name</source>
        <translation>无法创建没有名称的流程</translation>
    </message>
    <message>
        <source>The flow the with name &quot;</source>
        <translation>名为 &quot;</translation>
    </message>
    <message>
        <source>&quot; already exists.
Overwrite?</source>
        <translation>&quot; 的流程已存在。
是否覆盖？</translation>
    </message>
    <message>
        <source>Remove the flow:
 &quot;</source>
        <translation>删除流程：
 &quot;</translation>
    </message>
    <message>
        <source>&quot;?</source>
        <translation>&quot;？</translation>
    </message>
</context>
<context>
    <name>HSTNode</name>
    <message>
        <source>Left:</source>
        <translation>左：</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>右：</translation>
    </message>
</context>
<context>
    <name>IconWidget</name>
    <message>
        <source>Photos</source>
        <translation>照片</translation>
    </message>
</context>
<context>
    <name>InitLabel</name>
    <message>
        <source>Add an operation</source>
        <translation>添加操作</translation>
    </message>
    <message>
        <source>Press the round + and pick a step.</source>
        <translation>按下圆形 + 按钮并选择一个步骤。</translation>
    </message>
    <message>
        <source>Steps run from left to right.</source>
        <translation>步骤从左到右依次执行。</translation>
    </message>
</context>
<context>
    <name>MRRNode</name>
    <message>
        <source>Mirror horizontally</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation>垂直翻转</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>NodesTabBar</name>
    <message>
        <source>Earlier operations</source>
        <translation>前面的操作</translation>
    </message>
    <message>
        <source>Later operations</source>
        <translation>后面的操作</translation>
    </message>
</context>
<context>
    <name>RGBNode</name>
    <message>
        <source>Red&lt;-&gt;Blue</source>
        <translation>红&lt;-&gt;蓝</translation>
    </message>
    <message>
        <source>Red&lt;-&gt;Green</source>
        <translation>红&lt;-&gt;绿</translation>
    </message>
    <message>
        <source>Green&lt;-&gt;Blue</source>
        <translation>绿&lt;-&gt;蓝</translation>
    </message>
</context>
<context>
    <name>RSZNode</name>
    <message>
        <source>Width:</source>
        <translation>宽度：</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高度：</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>百分比</translation>
    </message>
    <message>
        <source>Maximum Pixels</source>
        <translation>最大像素</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>Scale by:</source>
        <translation>缩放方式：</translation>
    </message>
</context>
<context>
    <name>RTTNode</name>
    <message>
        <source>Rotate right</source>
        <translation>向右旋转</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>向左旋转</translation>
    </message>
</context>
<context>
    <name>Representor</name>
    <message>
        <source>Large view</source>
        <translation>大图查看</translation>
    </message>
</context>
<context>
    <name>TabLabel</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
</context>
<context>
    <name>UCSNode</name>
    <message>
        <source>Radius:</source>
        <translation>半径：</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>不透明度：</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>颜色：</translation>
    </message>
</context>
<context>
    <name>WMRNode</name>
    <message>
        <source>Size:</source>
        <translation>大小：</translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation>透明度：</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>粗体</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>下划线</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>文字颜色</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Draw the background</source>
        <translation>绘制背景</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Open the watermark file</source>
        <translation>打开水印文件</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>拉伸</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>水平偏移</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>垂直偏移</translation>
    </message>
    <message>
        <source>x:</source>
        <translation>x：</translation>
    </message>
    <message>
        <source>y:</source>
        <translation>y：</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>类型：</translation>
    </message>
    <message>
        <source>Logo:</source>
        <translation>徽标：</translation>
    </message>
    <message>
        <source>Expand:</source>
        <translation>拉伸：</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>文字：</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>字体：</translation>
    </message>
    <message>
        <source>Text color:</source>
        <translation>文字颜色：</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>背景：</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>位置：</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Can not open the image file:</source>
        <translation>无法打开图像文件：</translation>
    </message>
</context>
</TS>
