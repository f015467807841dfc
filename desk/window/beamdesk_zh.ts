<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Desk</name>
    <message>
        <source>this system cannot turn %1 into %2</source>
        <translation>系统不能将 %1 转换为 %2</translation>
    </message>
    <message>
        <source>not UTF-8</source>
        <translation>不是 UTF-8 编码</translation>
    </message>
    <message>
        <source>a zero byte in the text</source>
        <translation>文件内容中有零字节</translation>
    </message>
    <message>
        <source>unexpected %1; expected %2</source>
        <translation>意外的%1，此处应为%2</translation>
    </message>
    <message>
        <source>unexpected %1</source>
        <translation>意外的%1</translation>
    </message>
    <message>
        <source>invalid string: %1</source>
        <translation>字符串书写有误</translation>
    </message>
    <message>
        <source>invalid number; %1</source>
        <translation>数字书写有误</translation>
    </message>
    <message>
        <source>number overflow parsing %1</source>
        <translation>数值超出范围：%1</translation>
    </message>
    <message>
        <source>invalid literal</source>
        <translation>无法识别的字面值</translation>
    </message>
    <message>
        <source>string literal</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>number literal</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>true literal</source>
        <translation>真值 true</translation>
    </message>
    <message>
        <source>false literal</source>
        <translation>假值 false</translation>
    </message>
    <message>
        <source>null literal</source>
        <translation>空值 null</translation>
    </message>
    <message>
        <source>&apos;[&apos;, &apos;{&apos;, or a literal</source>
        <translation>“[”、“{”或一个值</translation>
    </message>
    <message>
        <source>end of input</source>
        <translation>文件结尾</translation>
    </message>
    <message>
        <source>the key &quot;%1&quot; stands twice in one object</source>
        <translation>同一对象中键“%1”重复</translation>
    </message>
    <message>
        <source>no valid JSON: %1</source>
        <translation>不是有效的 JSON：%1</translation>
    </message>
    <message>
        <source>nested deeper than %1 levels</source>
        <translation>嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>a project</source>
        <translation>工程</translation>
    </message>
    <message>
        <source>%1:%2: %3</source>
        <translation>%1:%2：%3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be %2, here stands %3</source>
        <translation>“%1”应为%2，此处为%3</translation>
    </message>
    <message>
        <source>%1 must be an object, here stands %2</source>
        <translation>%1应为对象，此处为%2</translation>
    </message>
    <message>
        <source>no &quot;version&quot; of the file format; this program reads version 1</source>
        <translation>缺少文件格式的版本号“version”；本程序读取版本 1</translation>
    </message>
    <message>
        <source>this program reads &quot;version&quot; 1 of the file format, not %1</source>
        <translation>本程序读取文件格式的版本“version”应为 1，此处为%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a control character</source>
        <translation>“%1”含有控制字符</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a character that GBK does not have</source>
        <translation>“%1”含有 GBK 中没有的字符</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a whole number from %2 to %3</source>
        <translation>“%1”应为 %2 至 %3 的整数</translation>
    </message>
    <message>
        <source>a beam</source>
        <translation>梁</translation>
    </message>
    <message>
        <source>a wall</source>
        <translation>墙</translation>
    </message>
    <message>
        <source>a text of the project is not UTF-8</source>
        <translation>工程中有文字不是 UTF-8 编码</translation>
    </message>
    <message>
        <source>%1: cannot be saved: the project is longer than the %2 MiB that are read again</source>
        <translation>%1：无法保存：工程超过可读取的 %2 MiB</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>没有此文件或文件夹</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>路径中有一项不是文件夹</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>没有权限</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>不允许此操作</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>文件系统为只读</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>磁盘空间不足</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>超出磁盘配额</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>符号链接层数过多</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>文件名过长</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>设备正忙</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>读写错误</translation>
    </message>
    <message>
        <source>%1: cannot be saved: %2</source>
        <translation>%1：无法保存：%2</translation>
    </message>
    <message>
        <source>a folder stands there</source>
        <translation>已有同名文件夹</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>%1: cannot be saved, it is write-protected: %2</source>
        <translation>%1：无法保存，文件写保护：%2</translation>
    </message>
    <message>
        <source>%1: saved, but the folder could not be synced: %2</source>
        <translation>%1：已保存，但文件夹未能同步到磁盘：%2</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>%1：无法打开：%2</translation>
    </message>
    <message>
        <source>%1:1:1: a folder, not a project file</source>
        <translation>%1：是文件夹，不是工程文件</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1：无法读取：%2</translation>
    </message>
    <message>
        <source>%1:1:1: longer than %2 MiB, no project is that long</source>
        <translation>%1：超过 %2 MiB，不是工程文件</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Wall %1</source>
        <translation>墙 %1</translation>
    </message>
    <message>
        <source>Beam %1</source>
        <translation>梁 %1</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>外观(&amp;A)</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>&amp;Panel size</source>
        <translation>面板大小(&amp;P)</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>最近打开的工程(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>Open the &amp;sample</source>
        <translation>打开示例(&amp;M)</translation>
    </message>
    <message>
        <source>Opens the sample project</source>
        <translation>打开示例工程</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>另存为(&amp;A)...</translation>
    </message>
    <message>
        <source>Saves under another name</source>
        <translation>以新的文件名保存</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>退出程序</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Takes the last change back</source>
        <translation>撤销上一步修改</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Makes the change again</source>
        <translation>重做被撤销的修改</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>查找(&amp;F)...</translation>
    </message>
    <message>
        <source>Finds annotations</source>
        <translation>查找标注</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>查找下一个(&amp;N)</translation>
    </message>
    <message>
        <source>The next annotation found</source>
        <translation>下一处找到的标注</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>查找上一个(&amp;P)</translation>
    </message>
    <message>
        <source>The previous annotation found</source>
        <translation>上一处找到的标注</translation>
    </message>
    <message>
        <source>&amp;Annotation</source>
        <translation>标注(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Type a text</source>
        <translation>键入标注(&amp;T)</translation>
    </message>
    <message>
        <source>Goes to the texts for the annotation</source>
        <translation>转到该标注的候选文字</translation>
    </message>
    <message>
        <source>&amp;Edit in place</source>
        <translation>就地编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Edits the property</source>
        <translation>在特性表中编辑</translation>
    </message>
    <message>
        <source>&amp;Compose in the panel</source>
        <translation>面板组合(&amp;C)</translation>
    </message>
    <message>
        <source>Opens the panel on the present text</source>
        <translation>用面板编辑当前文字</translation>
    </message>
    <message>
        <source>Next &amp;annotation</source>
        <translation>下一项标注(&amp;A)</translation>
    </message>
    <message>
        <source>The next annotation of the beam</source>
        <translation>本梁的下一项标注</translation>
    </message>
    <message>
        <source>&amp;Previous annotation</source>
        <translation>上一项标注(&amp;P)</translation>
    </message>
    <message>
        <source>The previous annotation of the beam</source>
        <translation>本梁的上一项标注</translation>
    </message>
    <message>
        <source>Next &amp;beam</source>
        <translation>下一根梁(&amp;N)</translation>
    </message>
    <message>
        <source>The same annotation of the next beam</source>
        <translation>下一根梁的同一项标注</translation>
    </message>
    <message>
        <source>P&amp;revious beam</source>
        <translation>上一根梁(&amp;R)</translation>
    </message>
    <message>
        <source>The same annotation of the previous beam</source>
        <translation>上一根梁的同一项标注</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>全图(&amp;F)</translation>
    </message>
    <message>
        <source>Shows the whole floor</source>
        <translation>显示整层平面</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Shows less, larger</source>
        <translation>放大显示</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Shows more, smaller</source>
        <translation>缩小显示</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About beamdesk</source>
        <translation>关于 beamdesk(&amp;A)</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1：无法建立文件夹</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a number from %2 to %3</source>
        <translation>“%1”应为 %2 至 %3 的数字</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be two coordinates in mm up to %2, as in [0, 8400]</source>
        <translation>“%1”应为两个坐标值，单位 mm，不超过 %2，例如 [0, 8400]</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a list of at most %2 lengths in mm</source>
        <translation>“%1”应为长度列表，最多 %2 个，单位 mm</translation>
    </message>
    <message>
        <source>the length of a span must be more than 0 mm and at most %1</source>
        <translation>跨长应大于 0 mm，不超过 %1</translation>
    </message>
    <message>
        <source>%1 without a &quot;%2&quot;</source>
        <translation>%1缺少“%2”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be one of %2</source>
        <translation>“%1”应为下列之一：“%2”</translation>
    </message>
    <message>
        <source>a text in place</source>
        <translation>原位标注</translation>
    </message>
    <message>
        <source>the file is cut off: its EOF is missing</source>
        <translation>文件不完整：缺少 EOF</translation>
    </message>
    <message>
        <source>a group code and a value are required here</source>
        <translation>此处应为组码和值</translation>
    </message>
    <message>
        <source>%1: a binary DXF; save it as ASCII DXF in the drawing program (Save as, DXF, options: ASCII)</source>
        <translation>%1：二进制 DXF；请在绘图软件中另存为 ASCII DXF（另存为，DXF，选项：ASCII）</translation>
    </message>
    <message>
        <source>%1: a DWG drawing; save it as ASCII DXF in the drawing program (Save as, type DXF)</source>
        <translation>%1：DWG 图纸；请在绘图软件中另存为 ASCII DXF（另存为，类型 DXF）</translation>
    </message>
    <message>
        <source>its leader ends on several beams</source>
        <translation>引线端点处有多根梁</translation>
    </message>
    <message>
        <source>several parallel beams are near</source>
        <translation>附近有多根平行的梁</translation>
    </message>
    <message>
        <source>its leader ends on no beam</source>
        <translation>引线端点处没有梁</translation>
    </message>
    <message>
        <source>it has no leader, and no parallel beam is near</source>
        <translation>没有引线，附近也没有平行的梁</translation>
    </message>
    <message>
        <source>no parallel beam is near</source>
        <translation>附近没有平行的梁</translation>
    </message>
    <message>
        <source>two beams are about as near as each other</source>
        <translation>两根梁的距离相近</translation>
    </message>
    <message>
        <source>the beam beside it has no label</source>
        <translation>旁边的梁没有集中标注</translation>
    </message>
    <message>
        <source>it is nothing that a support or a span has</source>
        <translation>不是支座或跨的原位标注</translation>
    </message>
    <message>
        <source>%1: its blocks hold each other too often to be shown</source>
        <translation>%1：块嵌套过多，无法显示</translation>
    </message>
    <message>
        <source>%1: a block holds itself</source>
        <translation>%1：块包含自身</translation>
    </message>
    <message>
        <source>the drawing takes no beams that it has no label for</source>
        <translation>图中没有集中标注的梁不能写入图纸</translation>
    </message>
    <message>
        <source>%1: a label needs its name</source>
        <translation>%1：集中标注需要编号</translation>
    </message>
    <message>
        <source>%1: this text of the drawing can only be changed in the drawing program</source>
        <translation>%1：图中的这个文字只能在绘图软件中修改</translation>
    </message>
    <message>
        <source>%1: the drawing has no text beside the beam that a new one could be made like</source>
        <translation>%1：梁旁没有可供仿照的文字，无法新增</translation>
    </message>
    <message>
        <source>%1: a label of block attributes takes no new line</source>
        <translation>%1：由块属性组成的集中标注不能增加行</translation>
    </message>
    <message>
        <source>Opens a project file or a drawing</source>
        <translation>打开工程文件或图纸</translation>
    </message>
    <message>
        <source>Saves the project or the drawing</source>
        <translation>保存工程或图纸</translation>
    </message>
    <message>
        <source>%1 bars in a row leave %2 mm clear between them, %3 mm required</source>
        <translation>一排%1根，净距%2 mm，要求不小于%3 mm</translation>
    </message>
    <message>
        <source>none, %1 mm² required</source>
        <translation>未配筋，需要%1 mm²</translation>
    </message>
    <message>
        <source>the through bars have %1 mm², %2 mm² required</source>
        <translation>仅有通长筋%1 mm²，需要%2 mm²</translation>
    </message>
    <message>
        <source>%1 mm², %2 mm² required</source>
        <translation>实配%1 mm²，需要%2 mm²</translation>
    </message>
    <message>
        <source>the through bars %1 are not among them</source>
        <translation>未包含通长筋%1</translation>
    </message>
    <message>
        <source>none; a frame beam has two at least</source>
        <translation>未标注；框架梁至少两根</translation>
    </message>
    <message>
        <source>only one; a frame beam has two at least</source>
        <translation>只有一根；框架梁至少两根</translation>
    </message>
    <message>
        <source>%1 mm thick, %2 mm at least in seismic class %3</source>
        <translation>直径%1 mm，抗震等级%3级时不小于%2 mm</translation>
    </message>
    <message>
        <source>%1 mm², a quarter of the bars at the end is %2 mm²</source>
        <translation>面积%1 mm²，梁端纵筋的四分之一为%2 mm²</translation>
    </message>
    <message>
        <source>the same support has %1 as well</source>
        <translation>同一支座另注有%1</translation>
    </message>
    <message>
        <source>rule of practice</source>
        <translation>工程惯例</translation>
    </message>
    <message>
        <source>Text that cannot be read</source>
        <translation>标注无法识别</translation>
    </message>
    <message>
        <source>Less steel than required</source>
        <translation>配筋小于计算面积</translation>
    </message>
    <message>
        <source>Bars do not fit the width</source>
        <translation>梁宽放不下钢筋</translation>
    </message>
    <message>
        <source>End bars without the through bars</source>
        <translation>支座筋未包含通长筋</translation>
    </message>
    <message>
        <source>Through bars of a frame beam</source>
        <translation>框架梁通长筋</translation>
    </message>
    <message>
        <source>Bars change over a support</source>
        <translation>支座两侧钢筋不一致</translation>
    </message>
    <message>
        <source>Stirrups too far apart</source>
        <translation>箍筋间距过大</translation>
    </message>
    <message>
        <source>Stirrups too thin</source>
        <translation>箍筋直径过小</translation>
    </message>
    <message>
        <source>Too few legs</source>
        <translation>箍筋肢数不足</translation>
    </message>
    <message>
        <source>%1; beams of other types: %2</source>
        <translation>%1；其他梁：%2</translation>
    </message>
    <message>
        <source>Section against the drawn width</source>
        <translation>截面宽度与图上不符</translation>
    </message>
    <message>
        <source>One name, different texts</source>
        <translation>同一编号标注不同</translation>
    </message>
    <message>
        <source>Gap in the names</source>
        <translation>编号不连续</translation>
    </message>
    <message>
        <source>the beam has no length</source>
        <translation>梁没有长度</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>无法识别</translation>
    </message>
    <message>
        <source>the beam has no section</source>
        <translation>梁没有截面</translation>
    </message>
    <message>
        <source>there is no %1 before it</source>
        <translation>前面缺%1</translation>
    </message>
    <message>
        <source>there are no %1 to %2 before it</source>
        <translation>前面缺%1至%2</translation>
    </message>
    <message>
        <source>the number is that of %1 already</source>
        <translation>序号已被%1使用</translation>
    </message>
    <message>
        <source>another %1 has %2</source>
        <translation>另一处%1为%2</translation>
    </message>
    <message>
        <source>Top bars</source>
        <translation>上部纵筋</translation>
    </message>
    <message>
        <source>Bottom bars</source>
        <translation>下部纵筋</translation>
    </message>
    <message>
        <source>Erection bars</source>
        <translation>架立筋</translation>
    </message>
    <message>
        <source>Side bars</source>
        <translation>侧面构造筋</translation>
    </message>
    <message>
        <source>Torsion bars</source>
        <translation>受扭纵筋</translation>
    </message>
    <message>
        <source>Stirrups</source>
        <translation>箍筋</translation>
    </message>
    <message>
        <source>An estimate for calculation, not for bending: spans from axis to axis, supports not taken off.</source>
        <translation>估算用量，不作下料依据：跨长按轴线计，不扣支座。</translation>
    </message>
    <message>
        <source>A beam without span lengths is divided evenly by the spans of its name.</source>
        <translation>没有跨长的梁，按编号中的跨数均分。</translation>
    </message>
    <message>
        <source>Anchorage as GB 50010-2010 (2015) 8.3.1, 8.3.2 and 11.1.7; bottom bars of beams that are no frame or coupling beams 12 d, side bars 15 d.</source>
        <translation>锚固长度按GB 50010-2010（2015年版）第8.3.1、8.3.2、11.1.7条；非框架梁、非连梁下部纵筋12d，侧面构造筋15d。</translation>
    </message>
    <message>
        <source>Bars over 9 m are lapped every 9 m, each lap 1.4 times the anchorage.</source>
        <translation>超过9 m的钢筋每9 m搭接一次，搭接长度为1.4倍锚固长度。</translation>
    </message>
    <message>
        <source>Bars at supports beside the through bars reach a third of the longer span, from the second row on a quarter; cantilevers all along.</source>
        <translation>支座处通长筋以外的钢筋伸入较大跨的三分之一，第二排起四分之一；悬挑梁伸至梁端。</translation>
    </message>
    <message>
        <source>Inner supports of a beam without texts in place have the stronger of its end bars.</source>
        <translation>没有原位标注的梁，中间支座取两端中较大的支座筋。</translation>
    </message>
    <message>
        <source>Erection bars a third of the span and 150 mm at either end.</source>
        <translation>架立筋长为跨长的三分之一，两端各加150 mm。</translation>
    </message>
    <message>
        <source>Concrete and formwork of the whole section, slabs and crossings not taken off; haunches, ties of side bars and walls are not counted.</source>
        <translation>混凝土和模板按全截面计，不扣板和梁相交处；加腋、拉筋和墙不计。</translation>
    </message>
    <message>
        <source>Grade</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Diameter, mm</source>
        <translation>直径 (mm)</translation>
    </message>
    <message>
        <source>%1, m</source>
        <translation>%1 (m)</translation>
    </message>
    <message>
        <source>Length, m</source>
        <translation>总长 (m)</translation>
    </message>
    <message>
        <source>Mass, kg</source>
        <translation>质量 (kg)</translation>
    </message>
    <message>
        <source>Steel, kg</source>
        <translation>钢筋 (kg)</translation>
    </message>
    <message>
        <source>Concrete, m³</source>
        <translation>混凝土 (m³)</translation>
    </message>
    <message>
        <source>Formwork, m²</source>
        <translation>模板 (m²)</translation>
    </message>
    <message>
        <source>Beams</source>
        <translation>梁数</translation>
    </message>
    <message>
        <source>Texts not counted</source>
        <translation>未计入的标注</translation>
    </message>
    <message>
        <source>spacing %1 mm at the ends, at most %2 mm</source>
        <translation>梁端间距%1 mm，不应大于%2 mm</translation>
    </message>
    <message>
        <source>%1 mm thick, %2 mm at least</source>
        <translation>直径%1 mm，不应小于%2 mm</translation>
    </message>
    <message>
        <source>the number of legs is missing</source>
        <translation>未注肢数</translation>
    </message>
    <message>
        <source>%1 legs; beams wider than %2 mm have more</source>
        <translation>%1肢；梁宽大于%2 mm时应更多</translation>
    </message>
    <message>
        <source>%1 legs are %2 mm apart, at most %3 mm</source>
        <translation>%1肢，肢距%2 mm，不宜大于%3 mm</translation>
    </message>
    <message>
        <source>drawn %1 mm wide</source>
        <translation>图上宽%1 mm</translation>
    </message>
    <message>
        <source>Stirrups from 50 mm off the axes, tight over 1.5 h (class 1: 2 h), 500 mm at least; cover as the code&apos;s environment class 1, hooks 10 d.</source>
        <translation>箍筋距轴线50 mm起布置，加密区1.5h（一级2h）且不小于500 mm；保护层按一类环境，弯钩平直段10d。</translation>
    </message>
    <message>
        <source>spacing %1 mm, at most %2 mm at this depth</source>
        <translation>间距%1 mm，此梁高不宜大于%2 mm</translation>
    </message>
    <message>
        <source>spacing %1 mm in the tight zone, at most %2 mm</source>
        <translation>加密区间距%1 mm，不应大于%2 mm</translation>
    </message>
    <message>
        <source>spacing %1 mm, at most twice the tight one: %2 mm</source>
        <translation>间距%1 mm，不宜大于加密区的2倍：%2 mm</translation>
    </message>
    <message>
        <source>cannot be read; an example: %1</source>
        <translation>无法识别；例如%1</translation>
    </message>
    <message>
        <source>same section</source>
        <translation>截面相同</translation>
    </message>
    <message>
        <source>same stirrups</source>
        <translation>箍筋相同</translation>
    </message>
    <message>
        <source>same top bars</source>
        <translation>上部筋相同</translation>
    </message>
    <message>
        <source>next to it</source>
        <translation>相邻</translation>
    </message>
    <message>
        <source>same type</source>
        <translation>类型相同</translation>
    </message>
    <message>
        <source>near it</source>
        <translation>相近</translation>
    </message>
    <message>
        <source>same width</source>
        <translation>梁宽相同</translation>
    </message>
    <message>
        <source>same height</source>
        <translation>梁高相同</translation>
    </message>
    <message>
        <source>same spans</source>
        <translation>跨数相同</translation>
    </message>
    <message>
        <source>in the same row</source>
        <translation>同一开间</translation>
    </message>
    <message>
        <source>neighbouring number</source>
        <translation>序号相邻</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1、%2、%3</translation>
    </message>
    <message>
        <source>the number after %1</source>
        <translation>接%1编号</translation>
    </message>
    <message>
        <source>a free number between %1 and %2, near it</source>
        <translation>附近%1与%2之间的空号</translation>
    </message>
    <message>
        <source>the first free number</source>
        <translation>第一个空号</translation>
    </message>
    <message>
        <source>a beam without a name</source>
        <translation>未编号的梁</translation>
    </message>
    <message>
        <source>as %1</source>
        <translation>同%1</translation>
    </message>
    <message>
        <source>as %1: %2</source>
        <translation>同%1：%2</translation>
    </message>
    <message>
        <source>as the other end of its span</source>
        <translation>同本跨另一端</translation>
    </message>
    <message>
        <source>as the span next to it</source>
        <translation>同邻跨</translation>
    </message>
    <message>
        <source>as the whole beam</source>
        <translation>同集中标注</translation>
    </message>
    <message>
        <source>gives %1 of %2 mm²</source>
        <translation>实配%1，需%2 mm²</translation>
    </message>
    <message>
        <source>new, gives %1 of %2 mm²</source>
        <translation>新配，实配%1，需%2 mm²</translation>
    </message>
    <message>
        <source>Next &amp;without a text</source>
        <translation>下一处空标注(&amp;W)</translation>
    </message>
    <message>
        <source>The next annotation that a text is wanted for</source>
        <translation>转到下一处需要标注而尚空的位置</translation>
    </message>
    <message>
        <source>%1: a plan is written as .pdf or .svg</source>
        <translation>%1：平面图只能写成 .pdf 或 .svg</translation>
    </message>
    <message>
        <source>at 1:%1 the plan would be %2 m long, and 5 m are the most; a larger scale number makes it smaller</source>
        <translation>比例 1:%1 时图面长 %2 m，最长为 5 m；比例分母越大，图面越小</translation>
    </message>
    <message>
        <source>A whole number from %1 to %2 is needed here, not &quot;%3&quot;.</source>
        <translation>此处须为 %1 至 %2 的整数，而不是“%3”。</translation>
    </message>
    <message>
        <source>Two coordinates in mm are needed here, as in 8400, 0, not &quot;%1&quot;.</source>
        <translation>此处须为以 mm 计的两个坐标，如 8400, 0，而不是“%1”。</translation>
    </message>
    <message>
        <source>Lengths in mm are needed here, as in 6000 + 5700, not &quot;%1&quot;.</source>
        <translation>此处须为以 mm 计的长度，如 6000 + 5700，而不是“%1”。</translation>
    </message>
    <message>
        <source>A single line is needed here.</source>
        <translation>此处须为单行文字。</translation>
    </message>
    <message>
        <source>%1: no beam&apos;s label could be read</source>
        <translation>%1：读不出任何梁的集中标注</translation>
    </message>
    <message>
        <source>%1: no annotation could be read</source>
        <translation>%1：读不出任何标注</translation>
    </message>
    <message>
        <source>%1: the export would replace what is exported</source>
        <translation>%1：导出会覆盖被导出的文件</translation>
    </message>
    <message>
        <source>%1: a drawing already; save it under this name</source>
        <translation>%1：本来就是图纸，请用“另存为”</translation>
    </message>
    <message>
        <source>Text in place</source>
        <translation>原位标注</translation>
    </message>
    <message>
        <source>What it is</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Number from the start</source>
        <translation>自起点的序号</translation>
    </message>
    <message>
        <source>Distances in mm are needed, as in 7x8000 or 6000 2700 6000</source>
        <translation>请输入以 mm 计的轴距，如 7x8000 或 6000 2700 6000</translation>
    </message>
    <message>
        <source>%1 axes, %2 to %3, %4 mm</source>
        <translation>共 %1 条轴线，%2 至 %3，%4 mm</translation>
    </message>
    <message>
        <source>New floor</source>
        <translation>新建楼层</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Distances of axes 1, 2, 3</source>
        <translation>数字轴线的轴距</translation>
    </message>
    <message>
        <source>Distances of axes A, B, C</source>
        <translation>字母轴线的轴距</translation>
    </message>
    <message>
        <source>Texts of a drawing</source>
        <translation>图纸中的文字</translation>
    </message>
    <message>
        <source>B for bars, A for stirrups</source>
        <translation>纵筋 B，箍筋 A</translation>
    </message>
    <message>
        <source>Grade where a sign tells none</source>
        <translation>符号未注明时的钢筋级别</translation>
    </message>
    <message>
        <source>Legs of stirrups that tell none</source>
        <translation>未注明时的箍筋肢数</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>新建(&amp;N)...</translation>
    </message>
    <message>
        <source>Makes an empty floor with its axes</source>
        <translation>新建只有轴网的空白楼层</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>导入(&amp;I)...</translation>
    </message>
    <message>
        <source>Makes a project of a drawing, or of the texts of one</source>
        <translation>由图纸或图纸中的文字建立工程</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>导出(&amp;E)...</translation>
    </message>
    <message>
        <source>Writes a drawing (DXF) or a plan (PDF, SVG)</source>
        <translation>写出图纸或平面图</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>打印(&amp;P)...</translation>
    </message>
    <message>
        <source>Prints the plan</source>
        <translation>打印平面图</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>绘制(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Beam</source>
        <translation>梁(&amp;B)</translation>
    </message>
    <message>
        <source>New beams, each between two positions</source>
        <translation>两点绘制新梁</translation>
    </message>
    <message>
        <source>&amp;Wall</source>
        <translation>墙(&amp;W)</translation>
    </message>
    <message>
        <source>New walls, each between two positions</source>
        <translation>两点绘制新墙</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copies the chosen beam or wall to other positions</source>
        <translation>把选中的梁或墙复制到别处</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>移动(&amp;M)</translation>
    </message>
    <message>
        <source>Moves the chosen beam or wall</source>
        <translation>移动选中的梁或墙</translation>
    </message>
    <message>
        <source>&amp;Turn round</source>
        <translation>调转方向(&amp;T)</translation>
    </message>
    <message>
        <source>Its end becomes its start</source>
        <translation>终点变为起点</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Deletes the chosen beam or wall; of a drawing its label</source>
        <translation>删除选中的梁或墙；图纸中删除其标注</translation>
    </message>
    <message>
        <source>Text in p&amp;lace...</source>
        <translation>原位标注(&amp;L)...</translation>
    </message>
    <message>
        <source>One more text of the beam, at one support or along one span</source>
        <translation>为梁的某一支座或某一跨添加标注</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>清除(&amp;R)</translation>
    </message>
    <message>
        <source>Removes the chosen annotation</source>
        <translation>清除选中的标注</translation>
    </message>
    <message>
        <source>Find others with this &amp;text</source>
        <translation>查找相同标注(&amp;T)</translation>
    </message>
    <message>
        <source>The next annotation with the same text</source>
        <translation>下一个文字相同的标注</translation>
    </message>
    <message>
        <source>Quan&amp;tities...</source>
        <translation>工程量(&amp;T)...</translation>
    </message>
    <message>
        <source>Lists the steel, the concrete and the formwork that the floor takes</source>
        <translation>列出本层钢筋、混凝土和模板用量</translation>
    </message>
    <message>
        <source>Next pr&amp;oblem</source>
        <translation>下一个问题(&amp;O)</translation>
    </message>
    <message>
        <source>The next annotation that has a problem</source>
        <translation>转到下一处有问题的标注</translation>
    </message>
    <message>
        <source>Previous proble&amp;m</source>
        <translation>上一个问题(&amp;M)</translation>
    </message>
    <message>
        <source>The previous annotation that has a problem</source>
        <translation>转到上一处有问题的标注</translation>
    </message>
    <message>
        <source>Quantities, an estimate</source>
        <translation>工程量估算</translation>
    </message>
    <message>
        <source>Sums, and how it was counted</source>
        <translation>合计与计算说明</translation>
    </message>
    <message>
        <source>The list was not written</source>
        <translation>清单未写出</translation>
    </message>
    <message>
        <source>Write &amp;CSV...</source>
        <translation>写出CSV(&amp;C)...</translation>
    </message>
    <message>
        <source>Write &amp;PDF...</source>
        <translation>写出PDF(&amp;P)...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>%1 (now %2)</source>
        <translation>%1（现为%2）</translation>
    </message>
    <message>
        <source>It is several annotations:
%1</source>
        <translation>其中有多项标注：
%1</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>拆分</translation>
    </message>
    <message>
        <source>It fits here:</source>
        <translation>适合以下标注：</translation>
    </message>
    <message>
        <source>It is no annotation that can be read. Kept as it is it counts as a problem, and proposals do not go by it.</source>
        <translation>无法识别为任何标注。照原样保留时计为问题，建议不以它为依据。</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>照原样保留</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>%1, %2: &quot;%3&quot; does not belong there.</source>
        <translation>%1，%2：“%3”不属于此处。</translation>
    </message>
    <message>
        <source>Copies the chosen annotation</source>
        <translation>复制选中的标注</translation>
    </message>
    <message>
        <source>Copy all texts of the &amp;beam</source>
        <translation>复制整根梁的标注(&amp;B)</translation>
    </message>
    <message>
        <source>Copies all annotations of the chosen beam or wall but its name</source>
        <translation>复制选中梁或墙除名称外的全部标注</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Gives what was copied to all chosen annotations</source>
        <translation>将复制的内容填入所有选中的标注</translation>
    </message>
    <message>
        <source>Repeat the &amp;last</source>
        <translation>重复上一次(&amp;L)</translation>
    </message>
    <message>
        <source>Gives the text that was taken last to all chosen annotations</source>
        <translation>将上一次选用的内容填入所有选中的标注</translation>
    </message>
    <message>
        <source>&amp;Match</source>
        <translation>匹配(&amp;M)</translation>
    </message>
    <message>
        <source>Gives the chosen text to what is clicked; of a name all texts of its beam</source>
        <translation>将选中的标注填入点击处；选中名称时填入整根梁的标注</translation>
    </message>
    <message>
        <source>Choose all with this &amp;text</source>
        <translation>选择内容相同的标注(&amp;T)</translation>
    </message>
    <message>
        <source>Chooses all annotations of the field that have the same text</source>
        <translation>选择同类标注中内容相同的全部标注</translation>
    </message>
    <message>
        <source>Choose all l&amp;ike this beam</source>
        <translation>选择同类梁(&amp;I)</translation>
    </message>
    <message>
        <source>Chooses the annotation in all beams of the same type and section</source>
        <translation>在类型和截面相同的所有梁中选择该标注</translation>
    </message>
    <message>
        <source>Find and r&amp;eplace...</source>
        <translation>查找和替换(&amp;E)...</translation>
    </message>
    <message>
        <source>Replaces a text in the annotations of one kind or all</source>
        <translation>在某类或全部标注中替换内容</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>查找和替换</translation>
    </message>
    <message>
        <source>Beam or wall</source>
        <translation>梁或墙</translation>
    </message>
    <message>
        <source>Annotation</source>
        <translation>标注</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>原内容</translation>
    </message>
    <message>
        <source>Becomes</source>
        <translation>改为</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Replace by</source>
        <translation>替换为</translation>
    </message>
    <message>
        <source>In annotations</source>
        <translation>标注种类</translation>
    </message>
    <message>
        <source>Of</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>all</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>all beams and walls</source>
        <translation>全部梁和墙</translation>
    </message>
    <message>
        <source>beams %1</source>
        <translation>%1 梁</translation>
    </message>
    <message>
        <source>%1 hits, %2 ticked</source>
        <translation>找到 %1 处，已勾选 %2 处</translation>
    </message>
    <message>
        <source>&amp;Copy the text</source>
        <translation>复制文字(&amp;C)</translation>
    </message>
    <message>
        <source>Beam type</source>
        <translation>梁类型</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Spans</source>
        <translation>跨数</translation>
    </message>
    <message>
        <source>Cantilever</source>
        <translation>悬挑</translation>
    </message>
    <message>
        <source>Beam width</source>
        <translation>梁宽</translation>
    </message>
    <message>
        <source>Beam height</source>
        <translation>梁高</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>标高</translation>
    </message>
    <message>
        <source>Grade sign</source>
        <translation>钢筋符</translation>
    </message>
    <message>
        <source>Steel grade</source>
        <translation>钢筋种类</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>直径</translation>
    </message>
    <message>
        <source>Tight spacing</source>
        <translation>加密间距</translation>
    </message>
    <message>
        <source>Legs where tight</source>
        <translation>加密肢数</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>间距</translation>
    </message>
    <message>
        <source>Legs</source>
        <translation>肢数</translation>
    </message>
    <message>
        <source>Type of the piece</source>
        <translation>钢筋成份</translation>
    </message>
    <message>
        <source>Number of bars</source>
        <translation>钢筋数</translation>
    </message>
    <message>
        <source>Upper and lower row</source>
        <translation>上下排</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>分隔符</translation>
    </message>
    <message>
        <source>Composed pieces</source>
        <translation>已组成的钢筋</translation>
    </message>
    <message>
        <source>&amp;Least height of annotations</source>
        <translation>标注最小字高(&amp;L)</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 像素</translation>
    </message>
    <message>
        <source>&amp;Recovery copy after a change</source>
        <translation>修改后写恢复副本(&amp;R)</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒后</translation>
    </message>
    <message>
        <source>takes the proposal with this number</source>
        <translation>采用该序号的建议</translation>
    </message>
    <message>
        <source>takes the proposal for the whole beam</source>
        <translation>采用整根梁的建议</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格键</translation>
    </message>
    <message>
        <source>goes to the next annotation that a text is wanted for</source>
        <translation>到下一个待填写的标注</translation>
    </message>
    <message>
        <source>goes to the line for a text, where digits are its characters</source>
        <translation>到文字输入框，此时数字作为文字输入</translation>
    </message>
    <message>
        <source>any other character</source>
        <translation>其他字符</translation>
    </message>
    <message>
        <source>begins a text and narrows the list</source>
        <translation>开始输入文字，同时筛选列表</translation>
    </message>
    <message>
        <source>lets go what is chosen; goes back a step while a beam is drawn</source>
        <translation>取消选择；画梁时退回一步</translation>
    </message>
    <message>
        <source>arrow keys, Page Up, Page Down</source>
        <translation>方向键、翻页键</translation>
    </message>
    <message>
        <source>move the plan</source>
        <translation>移动平面图</translation>
    </message>
    <message>
        <source>click</source>
        <translation>单击</translation>
    </message>
    <message>
        <source>chooses an annotation; on a beam or wall itself its name</source>
        <translation>选中标注；点在梁或墙上则选中其编号</translation>
    </message>
    <message>
        <source>Ctrl+click</source>
        <translation>Ctrl+单击</translation>
    </message>
    <message>
        <source>chooses one more, or lets it go</source>
        <translation>加选一个，或取消加选</translation>
    </message>
    <message>
        <source>double click</source>
        <translation>双击</translation>
    </message>
    <message>
        <source>opens the panel on the annotation</source>
        <translation>对该标注打开面板</translation>
    </message>
    <message>
        <source>chooses it too, and offers what can be done with it</source>
        <translation>同样选中，并列出可用的命令</translation>
    </message>
    <message>
        <source>rest on a beam or wall</source>
        <translation>在梁或墙上停留</translation>
    </message>
    <message>
        <source>tells its name, its texts and the area of their bars</source>
        <translation>显示编号、各标注及其钢筋面积</translation>
    </message>
    <message>
        <source>drag with Shift</source>
        <translation>按住 Shift 拖动</translation>
    </message>
    <message>
        <source>a frame: to the right it chooses the beams in it, to the left those that it touches as well</source>
        <translation>框选：向右拖选中框内的梁，向左拖连同碰到的梁一起选中</translation>
    </message>
    <message>
        <source>drag of bare ground, or with the middle button</source>
        <translation>拖动空白处，或按住中键拖动</translation>
    </message>
    <message>
        <source>moves the plan</source>
        <translation>移动平面图</translation>
    </message>
    <message>
        <source>wheel</source>
        <translation>滚轮</translation>
    </message>
    <message>
        <source>zooms at the pointer</source>
        <translation>以指针为中心缩放</translation>
    </message>
    <message>
        <source>drag of a handle</source>
        <translation>拖动夹点</translation>
    </message>
    <message>
        <source>moves an end of the chosen beam or wall</source>
        <translation>移动选中梁或墙的端点</translation>
    </message>
    <message>
        <source>Up, Down, Page Up, Page Down</source>
        <translation>上、下方向键，翻页键</translation>
    </message>
    <message>
        <source>move the mark in the list</source>
        <translation>移动列表中的光标</translation>
    </message>
    <message>
        <source>takes the marked text</source>
        <translation>采用光标所在的文字</translation>
    </message>
    <message>
        <source>takes the text as typed</source>
        <translation>按输入的原样采用</translation>
    </message>
    <message>
        <source>clears the line, then goes back to the plan</source>
        <translation>清空输入框，再按回到平面图</translation>
    </message>
    <message>
        <source>left button</source>
        <translation>左键</translation>
    </message>
    <message>
        <source>picks</source>
        <translation>点选</translation>
    </message>
    <message>
        <source>right button, Enter, menu key</source>
        <translation>右键、回车、菜单键</translation>
    </message>
    <message>
        <source>takes the composed text</source>
        <translation>采用组成的文字</translation>
    </message>
    <message>
        <source>leaves the annotation as it was</source>
        <translation>标注保持原样</translation>
    </message>
    <message>
        <source>Tab, arrow keys</source>
        <translation>Tab、方向键</translation>
    </message>
    <message>
        <source>go from list to list; pick in a list</source>
        <translation>在列表之间切换；在列表中点选</translation>
    </message>
    <message>
        <source>a position, x and y in mm</source>
        <translation>点的 x、y 坐标，单位 mm</translation>
    </message>
    <message>
        <source>x and y from the position before</source>
        <translation>相对上一点的 x、y</translation>
    </message>
    <message>
        <source>length and degrees from the position before</source>
        <translation>相对上一点的长度与角度</translation>
    </message>
    <message>
        <source>a length in the direction of the pointer</source>
        <translation>沿指针方向的长度</translation>
    </message>
    <message>
        <source>beams, to scale</source>
        <translation>梁，按比例</translation>
    </message>
    <message>
        <source>walls</source>
        <translation>墙</translation>
    </message>
    <message>
        <source>axes</source>
        <translation>轴线</translation>
    </message>
    <message>
        <source>annotations</source>
        <translation>标注</translation>
    </message>
    <message>
        <source>bars at the ends of a beam</source>
        <translation>梁端支座钢筋</translation>
    </message>
    <message>
        <source>what is chosen, its handles, and what is being drawn</source>
        <translation>选中的构件、其夹点，以及正在画的构件</translation>
    </message>
    <message>
        <source>the ground of the chosen annotation</source>
        <translation>选中标注的底色</translation>
    </message>
    <message>
        <source>after an underlined annotation: it has a problem, which F8 and the list of problems tell</source>
        <translation>位于带下划线的标注之后：该标注有问题，F8 和问题列表说明原因</translation>
    </message>
    <message>
        <source>around a text of a drawing: nothing ties it to a beam for certain</source>
        <translation>图纸文字外的方框：不能确定它属于哪根梁</translation>
    </message>
    <message>
        <source>lines of a drawing, which stay as they are</source>
        <translation>图纸原有的线，保持不变</translation>
    </message>
    <message>
        <source>the grade of the steel, first to fourth</source>
        <translation>钢筋级别，一级至四级</translation>
    </message>
    <message>
        <source>bars of a layer, those at the corners first; after the stroke the layer below</source>
        <translation>同一排的钢筋，角筋在前；斜线后为下一排</translation>
    </message>
    <message>
        <source>top bars; bottom bars</source>
        <translation>上部钢筋；下部钢筋</translation>
    </message>
    <message>
        <source>bars in rows, from the top down</source>
        <translation>钢筋分排，自上而下</translation>
    </message>
    <message>
        <source>before bars: side bars, that hold the stirrups of a deep beam</source>
        <translation>钢筋前缀：侧面构造筋</translation>
    </message>
    <message>
        <source>before bars: torsion bars at the sides</source>
        <translation>钢筋前缀：侧面受扭纵筋</translation>
    </message>
    <message>
        <source>stirrups: spacing near the supports, spacing between, legs; mm</source>
        <translation>箍筋：加密区间距、非加密区间距、肢数；单位 mm</translation>
    </message>
    <message>
        <source>name: type, number, spans; A a cantilever at one end, B at both</source>
        <translation>编号：类型、序号、跨数；A 为一端悬挑，B 为两端悬挑</translation>
    </message>
    <message>
        <source>section: width and height in mm</source>
        <translation>截面：宽、高，单位 mm</translation>
    </message>
    <message>
        <source>the last text that the project supports; of names the first free one</source>
        <translation>有本工程依据的最后一项；编号则为第一个空号</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>粗体</translation>
    </message>
    <message>
        <source>the present text</source>
        <translation>现有文字</translation>
    </message>
    <message>
        <source>3 x</source>
        <translation>3 处</translation>
    </message>
    <message>
        <source>how often the project uses it</source>
        <translation>本工程中使用的次数</translation>
    </message>
    <message>
        <source>In the project</source>
        <translation>工程已有</translation>
    </message>
    <message>
        <source>what other beams have, the likeliest first; then guesses, and rows of the reference table when they are ticked</source>
        <translation>其他梁已有的文字，最可能的在前；其后是推荐，勾选后还有参考表的行</translation>
    </message>
    <message>
        <source>as KL3(3): same section</source>
        <translation>同KL3(3)：截面相同</translation>
    </message>
    <message>
        <source>that beam has the text, and what both beams have in common</source>
        <translation>该梁有此文字，以及两根梁的相同之处</translation>
    </message>
    <message>
        <source>other texts of this beam say so</source>
        <translation>由本梁的其他标注得出</translation>
    </message>
    <message>
        <source>gives 982 of 900 mm²</source>
        <translation>实配982，需900 mm²</translation>
    </message>
    <message>
        <source>the steel that it gives, and the steel required; a new one is used by no beam yet</source>
        <translation>实配与所需的钢筋面积；“新配”为尚无梁使用</translation>
    </message>
    <message>
        <source>60 % of the votes</source>
        <translation>得票 60 %</translation>
    </message>
    <message>
        <source>its share in what the beams most like this one have</source>
        <translation>在与本梁最相似的梁中所占的份额</translation>
    </message>
    <message>
        <source>at the left</source>
        <translation>左侧</translation>
    </message>
    <message>
        <source>what was done and why, what is waited for, or what the command under the pointer does</source>
        <translation>做了什么及原因、正在等待什么，或指针所指命令的用途</translation>
    </message>
    <message>
        <source>⚠ 3 problems</source>
        <translation>⚠ 3个问题</translation>
    </message>
    <message>
        <source>how many problems the checks find; a press shows and hides their list</source>
        <translation>校核发现的问题数；单击可显示或隐藏问题列表</translation>
    </message>
    <message>
        <source>3 of 41</source>
        <translation>第 3 个，共 41 个</translation>
    </message>
    <message>
        <source>which of the annotations or problems found it is</source>
        <translation>在找到的标注或问题中是第几个</translation>
    </message>
    <message>
        <source>at the right</source>
        <translation>右侧</translation>
    </message>
    <message>
        <source>the beams and walls of the project</source>
        <translation>本工程的梁和墙</translation>
    </message>
    <message>
        <source>982 of 900 mm²</source>
        <translation>982 / 需 900 mm²</translation>
    </message>
    <message>
        <source>the steel that the annotation gives, and the steel required</source>
        <translation>标注的实配面积与所需面积</translation>
    </message>
    <message>
        <source>red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>cannot be read, does not fit, or is too little steel</source>
        <translation>无法识别、排不下或钢筋不足</translation>
    </message>
    <message>
        <source>On the plan</source>
        <translation>在平面图上</translation>
    </message>
    <message>
        <source>By mouse on the plan</source>
        <translation>平面图上的鼠标操作</translation>
    </message>
    <message>
        <source>While a text is typed</source>
        <translation>输入文字时</translation>
    </message>
    <message>
        <source>In a panel</source>
        <translation>在面板中</translation>
    </message>
    <message>
        <source>Typed positions</source>
        <translation>键入坐标</translation>
    </message>
    <message>
        <source>The plan</source>
        <translation>平面图</translation>
    </message>
    <message>
        <source>Annotations</source>
        <translation>标注</translation>
    </message>
    <message>
        <source>The lists of texts</source>
        <translation>文字列表</translation>
    </message>
    <message>
        <source>Reasons of proposals</source>
        <translation>建议的理由</translation>
    </message>
    <message>
        <source>The section</source>
        <translation>截面</translation>
    </message>
    <message>
        <source>The status line</source>
        <translation>状态栏</translation>
    </message>
    <message>
        <source>Settin&amp;gs...</source>
        <translation>设置(&amp;G)...</translation>
    </message>
    <message>
        <source>Language, colours, sizes, how soon a recovery copy is written</source>
        <translation>语言、颜色、大小，以及多久写恢复副本</translation>
    </message>
    <message>
        <source>&amp;Keys and signs</source>
        <translation>按键与符号(&amp;K)</translation>
    </message>
    <message>
        <source>The keys, and what colours, signs and words mean</source>
        <translation>按键，以及颜色、符号和用语的含义</translation>
    </message>
    <message>
        <source>What this program is, its version and licences</source>
        <translation>本程序的用途、版本与许可</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Hits</source>
        <translation>匹配项</translation>
    </message>
    <message>
        <source>What stays ticked is replaced</source>
        <translation>只替换勾选的项</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>回车</translation>
    </message>
    <message>
        <source>Ctrl+Enter</source>
        <translation>Ctrl+回车</translation>
    </message>
    <message>
        <source>a text pointed to %1</source>
        <translation>文字指定给 %1</translation>
    </message>
    <message>
        <source>is there</source>
        <translation>有</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>与 %1 比较</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>本窗口</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>文件中</translation>
    </message>
    <message>
        <source>All annotations and data are the same.</source>
        <translation>全部标注和数据相同。</translation>
    </message>
    <message>
        <source>%1 differences</source>
        <translation>%1 处不同</translation>
    </message>
    <message>
        <source>another desk has it open</source>
        <translation>另一个 beamdesk 已打开此文件</translation>
    </message>
    <message>
        <source>%1 %2 added</source>
        <translation>%1 新增 %2</translation>
    </message>
    <message>
        <source>%1 %2 removed</source>
        <translation>%1 清除 %2</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <translation>%1 %2 改为 %3</translation>
    </message>
    <message>
        <source>%1 texts of %2</source>
        <translation>%2 的 %1 处标注</translation>
    </message>
    <message>
        <source>%1 beams</source>
        <translation>%1 根梁</translation>
    </message>
    <message>
        <source>%1 walls</source>
        <translation>%1 道墙</translation>
    </message>
    <message>
        <source>%1 beams and walls</source>
        <translation>%1 个构件</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2的%1</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 已清除</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 改为 %2</translation>
    </message>
    <message>
        <source>%1 of %2 texts do not belong where they would go.</source>
        <translation>%2 处标注中有 %1 处不属于该项。</translation>
    </message>
    <message>
        <source>Keep them</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Leave them out</source>
        <translation>略去</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>right button</source>
        <translation>右键</translation>
    </message>
</context>
<context>
    <name>Desk::ChoiceBox</name>
    <message>
        <source>no text yet</source>
        <translation>尚无标注</translation>
    </message>
    <message>
        <source>Click an annotation in the drawing</source>
        <translation>请在图中点选标注</translation>
    </message>
    <message>
        <source>Type to narrow, Enter takes</source>
        <translation>键入以筛选，回车采用</translation>
    </message>
    <message>
        <source>&amp;Table rows</source>
        <translation>查表(&amp;T)</translation>
    </message>
    <message>
        <source>Rows of the reference table for the beam&apos;s width and required steel</source>
        <translation>按梁宽和计算配筋面积查表</translation>
    </message>
    <message>
        <source>Compose... (F4)</source>
        <translation>组合... (F4)</translation>
    </message>
    <message>
        <source>Enter to type, 1 to 3 take a proposal</source>
        <translation>回车后键入，1 至 3 采用建议</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>候选文字</translation>
    </message>
    <message>
        <source>Enter takes the marked text, Ctrl+Enter the text as typed.
In the drawing 1 to 3 take a proposal and 0 the whole beam&apos;s; Enter, Ctrl+T or a click here first types a text that begins with such a digit.</source>
        <translation>回车采用选中的文字，Ctrl+回车采用键入的文字。
在图中按 1 至 3 采用建议，按 0 采用整根梁的建议；要键入以这些数字开头的文字，先按回车、Ctrl+T 或单击此处。</translation>
    </message>
    <message>
        <source>Opens the panel that composes the text by mouse (F4)</source>
        <translation>打开面板，用鼠标组成文字（F4）</translation>
    </message>
</context>
<context>
    <name>Desk::ChoiceModel</name>
    <message>
        <source>The first free name</source>
        <translation>第一个可用编号</translation>
    </message>
    <message>
        <source>The last text that the project supports</source>
        <translation>工程中用过的标注到此为止</translation>
    </message>
    <message>
        <source>Guesses</source>
        <translation>推荐</translation>
    </message>
    <message>
        <source>From the table</source>
        <translation>查表</translation>
    </message>
    <message>
        <source>Free names of the project&apos;s kinds</source>
        <translation>可用编号</translation>
    </message>
    <message>
        <source>In the project</source>
        <translation>工程已有</translation>
    </message>
    <message>
        <source>%1 x</source>
        <translation>%1 处</translation>
    </message>
</context>
<context>
    <name>Desk::Docks</name>
    <message>
        <source>Texts</source>
        <translation>候选文字</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>截面</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 等，另有 %2 处</translation>
    </message>
</context>
<context>
    <name>Desk::Document</name>
    <message>
        <source>An annotation is a single line without control characters.</source>
        <translation>标注应为单行文字，不含控制字符。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that drawings cannot store.</source>
        <translation>“%1”含有图纸无法保存的字符。</translation>
    </message>
    <message>
        <source>There is no recovery copy: %1</source>
        <translation>没有恢复副本：%1</translation>
    </message>
    <message>
        <source>The plan ends 1000 km from its origin.</source>
        <translation>平面图的范围为原点起 1000 km。</translation>
    </message>
    <message>
        <source>The beams of a drawing are where it has their outlines, which the drawing program changes. Saved as a project they can be changed here.</source>
        <translation>图纸中的梁以图上的轮廓线为准，轮廓线须在绘图程序中修改。另存为工程后可在此修改。</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>正在打开 %1</translation>
    </message>
    <message>
        <source>Sample project</source>
        <translation>示例工程</translation>
    </message>
    <message>
        <source>New floor</source>
        <translation>新建楼层</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>正在保存 %1</translation>
    </message>
</context>
<context>
    <name>Desk::Editing</name>
    <message>
        <source>This cannot be done: %1</source>
        <translation>无法执行：%1</translation>
    </message>
    <message>
        <source>There is no outline of one beam without a label</source>
        <translation>此处没有未标注的单根梁轮廓</translation>
    </message>
    <message>
        <source>%1 beams and walls</source>
        <translation>%1 个构件</translation>
    </message>
    <message>
        <source>%1 moved</source>
        <translation>%1 已移动</translation>
    </message>
    <message>
        <source>%1 turned round</source>
        <translation>%1 已调转方向</translation>
    </message>
    <message>
        <source>%1 copied</source>
        <translation>%1 已复制</translation>
    </message>
    <message>
        <source>%1 deleted</source>
        <translation>%1 已删除</translation>
    </message>
    <message>
        <source>The value was not taken</source>
        <translation>数值未被采用</translation>
    </message>
    <message>
        <source>Choose a beam first</source>
        <translation>请先选择一根梁</translation>
    </message>
    <message>
        <source>A label needs its name; deleting the beam removes the whole label</source>
        <translation>集中标注必须有编号；删除梁可删除整个标注</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 已清除</translation>
    </message>
    <message>
        <source>%1 annotations</source>
        <translation>%1 处标注</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>新增 %1</translation>
    </message>
    <message>
        <source>Label %1 added</source>
        <translation>新增标注 %1</translation>
    </message>
    <message>
        <source>Wall %1 added</source>
        <translation>新增墙 %1</translation>
    </message>
    <message>
        <source>%1 is there already</source>
        <translation>%1 已在此处</translation>
    </message>
    <message>
        <source>start of %1 moved</source>
        <translation>%1 的起点移动</translation>
    </message>
    <message>
        <source>end of %1 moved</source>
        <translation>%1 的终点移动</translation>
    </message>
    <message>
        <source>%1: %2 already</source>
        <translation>%1：已是 %2</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1：%2 改为 %3</translation>
    </message>
    <message>
        <source>text in place of %1 added</source>
        <translation>新增 %1 的原位标注</translation>
    </message>
    <message>
        <source>%1: no text already</source>
        <translation>%1：本来就没有标注</translation>
    </message>
    <message>
        <source>Text of %1 moved</source>
        <translation>%1 的注写已移动</translation>
    </message>
</context>
<context>
    <name>Desk::HelpWindow</name>
    <message>
        <source>Menu %1</source>
        <translation>“%1”菜单</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Keys, signs, version and licences</source>
        <translation>按键、符号、版本与许可</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>What things mean</source>
        <translation>含义</translation>
    </message>
    <message>
        <source>Version and licences</source>
        <translation>版本与许可</translation>
    </message>
    <message>
        <source>A small drafting desk for the annotations of reinforced-concrete beams and walls: it offers the texts that you most likely want, and panels that compose them by mouse.</source>
        <translation>钢筋混凝土梁、墙标注的小型绘图台：按可能性排列候选文字，并可用鼠标在面板中组合标注。</translation>
    </message>
    <message>
        <source>It uses</source>
        <translation>使用了以下软件</translation>
    </message>
    <message>
        <source>Qt %1, as shared libraries, under the GNU Lesser General Public License, version 3</source>
        <translation>Qt %1，以共享库方式使用，许可：GNU Lesser General Public License 第 3 版</translation>
    </message>
    <message>
        <source>nlohmann/json by Niels Lohmann, under the MIT License</source>
        <translation>nlohmann/json（Niels Lohmann），许可：MIT License</translation>
    </message>
    <message>
        <source>CLI11 by the University of Cincinnati, under the BSD 3-Clause License</source>
        <translation>CLI11（University of Cincinnati），许可：BSD 3-Clause License</translation>
    </message>
</context>
<context>
    <name>Desk::ImportExport</name>
    <message>
        <source>An empty floor. Draw beams with Ctrl+B</source>
        <translation>空白楼层。按 Ctrl+B 绘制梁</translation>
    </message>
    <message>
        <source>Import a drawing or texts</source>
        <translation>导入图纸或文字</translation>
    </message>
    <message>
        <source>Drawings and texts (*.dxf *.txt *.tsv);;All files (*)</source>
        <translation>图纸和文字 (*.dxf *.txt *.tsv);;所有文件 (*)</translation>
    </message>
    <message>
        <source>%1 beams imported; the project has no file yet</source>
        <translation>已导入 %1 根梁；工程尚未存盘</translation>
    </message>
    <message>
        <source>%1 of %2 texts imported; the project has no file yet</source>
        <translation>已导入 %1 条文字，共 %2 条；工程尚未存盘</translation>
    </message>
    <message>
        <source>%1 texts were not read</source>
        <translation>有 %1 条文字未能识读</translation>
    </message>
    <message>
        <source>Nothing was imported</source>
        <translation>没有导入任何内容</translation>
    </message>
    <message>
        <source>Drawings (*.dxf)</source>
        <translation>图纸 (*.dxf)</translation>
    </message>
    <message>
        <source>Plans (*.pdf *.svg)</source>
        <translation>平面图 (*.pdf *.svg)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Scale of the plan, 1 to</source>
        <translation>平面图比例，1 比</translation>
    </message>
    <message>
        <source>Nothing was exported</source>
        <translation>没有导出任何内容</translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>已导出：%1</translation>
    </message>
    <message>
        <source>Printed at 1:%1</source>
        <translation>已按 1:%1 打印</translation>
    </message>
    <message>
        <source>The printer takes nothing</source>
        <translation>打印机无法接收</translation>
    </message>
    <message>
        <source>Importing %1</source>
        <translation>正在导入 %1</translation>
    </message>
    <message>
        <source>Exporting %1</source>
        <translation>正在导出 %1</translation>
    </message>
</context>
<context>
    <name>Desk::MainWindow</name>
    <message>
        <source>Saved: %1</source>
        <translation>已保存：%1</translation>
    </message>
    <message>
        <source>%1 beams, %2 walls</source>
        <translation>梁 %1 根，墙 %2 道</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>已撤销：%1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>已重做：%1</translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <translation>%1（只读）</translation>
    </message>
    <message>
        <source>Panel: left button picks, right button or Enter takes the text, Esc leaves</source>
        <translation>面板：左键选取，右键或回车确认，Esc 取消</translation>
    </message>
    <message>
        <source>The beams and walls of the project</source>
        <translation>本工程的梁和墙</translation>
    </message>
    <message>
        <source>Status line</source>
        <translation>状态栏</translation>
    </message>
</context>
<context>
    <name>Desk::OpenTexts</name>
    <message>
        <source>Open texts</source>
        <translation>待定文字</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Why it is open</source>
        <translation>待定原因</translation>
    </message>
    <message>
        <source>Point to its beam</source>
        <translation>指定所属梁</translation>
    </message>
    <message>
        <source>Then press the beam on the plan</source>
        <translation>然后在平面图上点取梁</translation>
    </message>
    <message>
        <source>Press the beam of %1 on the plan; Esc leaves the text open</source>
        <translation>请在平面图上点取 %1 所属的梁，按 Esc 保持待定</translation>
    </message>
    <message>
        <source>The text stays open</source>
        <translation>文字保持待定</translation>
    </message>
    <message>
        <source>%1 belongs to %2</source>
        <translation>%1 属于 %2</translation>
    </message>
    <message>
        <source>There is no beam that could take %1; press another position, or Esc</source>
        <translation>此处没有 %1 可归属的梁，请另选位置或按 Esc</translation>
    </message>
    <message>
        <source>A click on a row shows the text on the plan</source>
        <translation>单击一行，在平面图上显示该文字</translation>
    </message>
    <message>
        <source>Why nothing ties the text to a beam for certain</source>
        <translation>为何不能确定该文字属于哪根梁</translation>
    </message>
</context>
<context>
    <name>Desk::PlanTools</name>
    <message>
        <source>Choose a beam or a wall first</source>
        <translation>请先选择一根梁或一道墙</translation>
    </message>
    <message>
        <source>The beams of a drawing are where it has their outlines</source>
        <translation>图纸中的梁以图上的轮廓线为准</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no position; &quot;8000,0&quot;, &quot;@6000,0&quot; and &quot;@6000&lt;90&quot; are</source>
        <translation>“%1”不是坐标；可写作“8000,0”“@6000,0”或“@6000&lt;90”</translation>
    </message>
    <message>
        <source>Start of the beam</source>
        <translation>梁的起点</translation>
    </message>
    <message>
        <source>End of the beam</source>
        <translation>梁的终点</translation>
    </message>
    <message>
        <source>Outline without a label</source>
        <translation>未标注的梁轮廓</translation>
    </message>
    <message>
        <source>Start of the wall</source>
        <translation>墙的起点</translation>
    </message>
    <message>
        <source>End of the wall</source>
        <translation>墙的终点</translation>
    </message>
    <message>
        <source>Move from</source>
        <translation>移动的基点</translation>
    </message>
    <message>
        <source>Move to</source>
        <translation>移动到</translation>
    </message>
    <message>
        <source>Copy from</source>
        <translation>复制的基点</translation>
    </message>
    <message>
        <source>Copy to</source>
        <translation>复制到</translation>
    </message>
    <message>
        <source>A position: x,y in mm; @x,y or @length&lt;degrees from the one before; or the length alone</source>
        <translation>坐标：以 mm 计的 x,y；相对上一点的 @x,y 或 @长度&lt;角度；或只写长度</translation>
    </message>
    <message>
        <source>%1: press a position on the plan or type it; Esc goes back</source>
        <translation>%1：请在平面图上点取或输入坐标，按 Esc 返回</translation>
    </message>
</context>
<context>
    <name>Desk::ProblemRows</name>
    <message>
        <source>Beam</source>
        <translation>梁</translation>
    </message>
    <message>
        <source>Annotation</source>
        <translation>标注</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>规则</translation>
    </message>
    <message>
        <source>A click on a row chooses the annotation; its context menu switches the rule off</source>
        <translation>单击一行选中该标注；右键菜单可关闭该规则</translation>
    </message>
</context>
<context>
    <name>Desk::Problems</name>
    <message>
        <source>No problems</source>
        <translation>没有问题</translation>
    </message>
    <message>
        <source>1 problem</source>
        <translation>1个问题</translation>
    </message>
    <message>
        <source>%1 problems</source>
        <translation>%1个问题</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>第%1个，共%2个</translation>
    </message>
    <message>
        <source>Do not check: %1</source>
        <translation>不检查：%1</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>规则</translation>
    </message>
    <message>
        <source>Which rules this project is checked by</source>
        <translation>本工程按哪些规则检查</translation>
    </message>
    <message>
        <source>Shows or hides the list of problems; F8 goes to the next one</source>
        <translation>显示或隐藏问题列表；F8转到下一个</translation>
    </message>
    <message>
        <source>rule on: %1</source>
        <translation>启用规则：%1</translation>
    </message>
    <message>
        <source>rule off: %1</source>
        <translation>停用规则：%1</translation>
    </message>
</context>
<context>
    <name>Desk::ProjectFiles</name>
    <message>
        <source>a project that was never saved</source>
        <translation>未保存过的工程</translation>
    </message>
    <message>
        <source>The last session ended before its work was saved.</source>
        <translation>上次程序结束时有修改未保存。</translation>
    </message>
    <message>
        <source>A recovery copy of %1 was kept at %2.</source>
        <translation>恢复副本：%1，保存于 %2。</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Delete the copy</source>
        <translation>删除副本</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>以后再说</translation>
    </message>
    <message>
        <source>The recovery copy could not be opened</source>
        <translation>恢复副本无法打开</translation>
    </message>
    <message>
        <source>Another program has written %1 since it was opened here.</source>
        <translation>打开之后，%1 已被其他程序改写。</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>另存为...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Leave without saving</source>
        <translation>不保存</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The drawing is no longer as it was</source>
        <translation>图纸已有变动</translation>
    </message>
    <message>
        <source>The work on %1 was opened as a project without a file.</source>
        <translation>%1 的未保存内容已作为尚无文件的工程打开。</translation>
    </message>
    <message>
        <source>Open a project or a drawing</source>
        <translation>打开工程或图纸</translation>
    </message>
    <message>
        <source>Projects and drawings (*.json *.dxf);;All files (*)</source>
        <translation>工程和图纸 (*.json *.dxf);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Drawings (*.dxf)</source>
        <translation>图纸 (*.dxf)</translation>
    </message>
    <message>
        <source>Projects (*.json)</source>
        <translation>工程 (*.json)</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>%1 is open in another desk: here it is read only, and saving asks for another name</source>
        <translation>%1 已在另一个 beamdesk 中打开：此处只读，保存时须另取文件名</translation>
    </message>
    <message>
        <source>%1 could not be opened</source>
        <translation>%1 无法打开</translation>
    </message>
    <message>
        <source>%1 has unsaved changes.</source>
        <translation>%1 有未保存的修改。</translation>
    </message>
    <message>
        <source>%1 is open in another desk.</source>
        <translation>%1 已在另一个 beamdesk 中打开。</translation>
    </message>
    <message>
        <source>Saved under another name nothing of it is lost.</source>
        <translation>另存为其他文件名，修改不会丢失。</translation>
    </message>
    <message>
        <source>It is on the computer %1. Saved under another name nothing of it is lost.</source>
        <translation>打开它的计算机是 %1。另存为其他文件名，修改不会丢失。</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新载入</translation>
    </message>
    <message>
        <source>Save mine over it</source>
        <translation>以本窗口的内容覆盖</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>保留本窗口的内容</translation>
    </message>
    <message>
        <source>Compare...</source>
        <translation>比较...</translation>
    </message>
    <message>
        <source>Reloading gives up what was changed here and not saved.</source>
        <translation>重新载入将放弃此处未保存的修改。</translation>
    </message>
    <message>
        <source>Nothing was changed here since.</source>
        <translation>此处没有未保存的修改。</translation>
    </message>
    <message>
        <source>%1 could not be compared</source>
        <translation>%1 无法比较</translation>
    </message>
    <message>
        <source>The other desk has closed %1: it can be saved here</source>
        <translation>另一个 beamdesk 已关闭 %1：此处可以保存</translation>
    </message>
    <message>
        <source>%1 could not be saved</source>
        <translation>%1 无法保存</translation>
    </message>
</context>
<context>
    <name>Desk::PropertyGrid</name>
    <message>
        <source>Compose: %1</source>
        <translation>用面板组成：%1</translation>
    </message>
    <message>
        <source>F2 or a second click edits the text, F4 composes it</source>
        <translation>F2 或再次单击编辑文字，F4 用面板组成</translation>
    </message>
    <message>
        <source>Opens the panel that composes the text by mouse (F4)</source>
        <translation>打开面板，用鼠标组成文字（F4）</translation>
    </message>
    <message>
        <source>F2 or a second click edits it</source>
        <translation>F2 或再次单击编辑</translation>
    </message>
</context>
<context>
    <name>Desk::ProposalRows</name>
    <message>
        <source>used %1 x</source>
        <translation>用过 %1 处</translation>
    </message>
    <message>
        <source>Proposals</source>
        <translation>建议</translation>
    </message>
    <message>
        <source>as it is; %1</source>
        <translation>现有；%1</translation>
    </message>
    <message>
        <source>%1
%2
%3 % of the votes</source>
        <translation>%1
%2
得票 %3 %</translation>
    </message>
    <message>
        <source>The whole beam %1</source>
        <translation>整根梁 %1</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1：%2，%3</translation>
    </message>
</context>
<context>
    <name>Desk::SearchLine</name>
    <message>
        <source>Find a name or text (Ctrl+F)</source>
        <translation>查找编号或文字 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Ctrl+F comes here, Enter goes to the first annotation with the text, F3 to the next, Shift+F3 to the one before</source>
        <translation>Ctrl+F 转到此处，回车到第一个含该文字的标注，F3 到下一个，Shift+F3 到上一个</translation>
    </message>
</context>
<context>
    <name>Desk::SectionSketch</name>
    <message>
        <source>at the left end</source>
        <translation>左支座截面</translation>
    </message>
    <message>
        <source>at the right end</source>
        <translation>右支座截面</translation>
    </message>
    <message>
        <source>in the span</source>
        <translation>跨中截面</translation>
    </message>
    <message>
        <source>%1 of %2 mm²</source>
        <translation>%1 / 需 %2 mm²</translation>
    </message>
    <message>
        <source>%1 mm²</source>
        <translation>%1 mm²</translation>
    </message>
    <message>
        <source>There is no section to draw</source>
        <translation>没有截面尺寸</translation>
    </message>
    <message>
        <source>Less steel than required</source>
        <translation>配筋小于计算面积</translation>
    </message>
    <message>
        <source>Too many bars for the width</source>
        <translation>梁宽排不下钢筋</translation>
    </message>
    <message>
        <source>The section cannot be read</source>
        <translation>截面无法识别</translation>
    </message>
    <message>
        <source>The stirrups cannot be read</source>
        <translation>箍筋无法识别</translation>
    </message>
    <message>
        <source>Bars cannot be read</source>
        <translation>钢筋无法识别</translation>
    </message>
</context>
<context>
    <name>Desk::Selection</name>
    <message>
        <source>No annotation contains &quot;%1&quot;</source>
        <translation>没有标注含有“%1”</translation>
    </message>
    <message>
        <source>The text was not taken</source>
        <translation>文字未被采用</translation>
    </message>
    <message>
        <source>No beam lacks a text</source>
        <translation>没有缺标注的梁</translation>
    </message>
    <message>
        <source>%1 annotations</source>
        <translation>%1 处标注</translation>
    </message>
    <message>
        <source>Beams and walls do not take the same texts</source>
        <translation>梁与墙的标注不能互用</translation>
    </message>
    <message>
        <source>%1 annotations chosen</source>
        <translation>已选择 %1 处标注</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>已复制：%1</translation>
    </message>
    <message>
        <source>Copied: all texts of %1 but its name</source>
        <translation>已复制 %1 除名称外的全部标注</translation>
    </message>
    <message>
        <source>The clipboard has no single line of text</source>
        <translation>剪贴板中没有单行文字</translation>
    </message>
    <message>
        <source>Nothing was taken yet</source>
        <translation>尚未选用过内容</translation>
    </message>
    <message>
        <source>Click what gets all texts of %1 but its name; Esc ends</source>
        <translation>点击要填入 %1 全部标注（名称除外）的梁或墙，Esc 结束</translation>
    </message>
    <message>
        <source>Click what gets %1; Esc ends</source>
        <translation>点击要填入 %1 的标注，Esc 结束</translation>
    </message>
    <message>
        <source>%1 texts replaced</source>
        <translation>已替换 %1 处标注</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>第 %1 个，共 %2 个</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>平面图</translation>
    </message>
    <message>
        <source>Nothing is chosen</source>
        <translation>未选中任何标注</translation>
    </message>
    <message>
        <source>no text yet</source>
        <translation>尚无标注</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 等，另有 %2 处</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>无标注</translation>
    </message>
    <message>
        <source>%1: %2 already</source>
        <translation>%1：已是 %2</translation>
    </message>
</context>
<context>
    <name>Desk::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>Desk::Surface</name>
    <message>
        <source>Take</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Left picks and adds a digit, a double click sets it; right or Enter takes, Esc cancels</source>
        <translation>左键选取并添加数字，双击重设为该数字；右键或回车确认，Esc 取消</translation>
    </message>
    <message>
        <source>Left picks; right, double click or Enter takes, Esc cancels</source>
        <translation>左键选取；右键、双击或回车确认，Esc 取消</translation>
    </message>
    <message>
        <source>Left picks, right or Enter takes, Esc cancels</source>
        <translation>左键选取，右键或回车确认，Esc 取消</translation>
    </message>
    <message>
        <source>Not taken yet: take it or cancel?</source>
        <translation>文字尚未确认：确认还是取消？</translation>
    </message>
    <message>
        <source>Takes the composed text (Enter)</source>
        <translation>采用组成的文字（回车）</translation>
    </message>
    <message>
        <source>Leaves the annotation as it was (Esc)</source>
        <translation>标注保持原样（Esc）</translation>
    </message>
</context>
</TS>
