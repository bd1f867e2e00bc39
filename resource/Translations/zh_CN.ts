<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>         Disable</source>
        <translation>         关闭</translation>
    </message>
    <message>
        <source>         Enable</source>
        <translation>         开启</translation>
    </message>
    <message>
        <source>        Custom</source>
        <translation>        自定义</translation>
    </message>
    <message>
        <source>        Default</source>
        <translation>        默认</translation>
    </message>
    <message>
        <source> already enabled!</source>
        <translation> 已启用！</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 %, from low to high</source>
        <translation>%1 %，从低到高</translation>
    </message>
    <message>
        <source>%1 cannot be written. Nothing was changed.</source>
        <translation>无法写入&#xa0;%1，未作任何更改。</translation>
    </message>
    <message>
        <source>%1 cannot be written: what is set here lasts until the program ends.</source>
        <translation>无法写入&#xa0;%1：此处的设置在程序结束前有效。</translation>
    </message>
    <message>
        <source>%1 does not have &quot;%2&quot;.</source>
        <translation>%1&#xa0;没有“%2”。</translation>
    </message>
    <message>
        <source>%1 frames a second</source>
        <translation>每秒&#xa0;%1&#xa0;帧</translation>
    </message>
    <message>
        <source>%1 goes to the level before.</source>
        <translation>%1：切换到上一级。</translation>
    </message>
    <message>
        <source>%1 goes to the next level.</source>
        <translation>%1：切换到下一级。</translation>
    </message>
    <message>
        <source>%1 has no OLED panel to care for.</source>
        <translation>%1&#xa0;没有需要护理的 OLED 面板。</translation>
    </message>
    <message>
        <source>%1 has no game functions.</source>
        <translation>%1&#xa0;没有游戏功能。</translation>
    </message>
    <message>
        <source>%1 holds no saved drawing. It stays as it is until you save.</source>
        <translation>%1&#xa0;中没有已保存的绘图。在您保存之前，该文件保持不变。</translation>
    </message>
    <message>
        <source>%1 hours of use counted</source>
        <translation>已累计使用&#xa0;%1&#xa0;小时</translation>
    </message>
    <message>
        <source>%1 hours of use since the last care</source>
        <translation>上次护理后已使用&#xa0;%1&#xa0;小时</translation>
    </message>
    <message>
        <source>%1 in all, %2 by itself today</source>
        <translation>共&#xa0;%1&#xa0;次，今日自动&#xa0;%2&#xa0;次</translation>
    </message>
    <message>
        <source>%1 is in the list already.</source>
        <translation>%1&#xa0;已在列表中。</translation>
    </message>
    <message>
        <source>%1 is taken by another program or function and does nothing here.</source>
        <translation>%1&#xa0;已被其他程序或功能占用，在此不起作用。</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;分钟</translation>
    </message>
    <message>
        <source>%1 moves it to the corner before.</source>
        <translation>%1：移到上一个角落。</translation>
    </message>
    <message>
        <source>%1 moves it to the next corner.</source>
        <translation>%1：移到下一个角落。</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1&#xa0;毫秒</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1（共&#xa0;%2）</translation>
    </message>
    <message>
        <source>%1 of %2 lost</source>
        <translation>%2&#xa0;次中丢失&#xa0;%1&#xa0;次</translation>
    </message>
    <message>
        <source>%1 of %2 values were told, in %3 s.</source>
        <translation>已读取&#xa0;%2&#xa0;个值中的&#xa0;%1&#xa0;个，用时&#xa0;%3&#xa0;秒。</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1&#xa0;像素</translation>
    </message>
    <message>
        <source>%1 requests are recorded in %2</source>
        <translation>已将&#xa0;%1&#xa0;次请求记录到&#xa0;%2</translation>
    </message>
    <message>
        <source>%1 rows, %2 cells, %3 on</source>
        <translation>%1&#xa0;行，%2&#xa0;格，亮&#xa0;%3&#xa0;格</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;秒</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>剩余&#xa0;%1&#xa0;秒</translation>
    </message>
    <message>
        <source>%1 steps the colour.</source>
        <translation>%1：切换颜色。</translation>
    </message>
    <message>
        <source>%1 steps the corner.</source>
        <translation>%1：切换角落。</translation>
    </message>
    <message>
        <source>%1 steps the length.</source>
        <translation>%1：切换时长。</translation>
    </message>
    <message>
        <source>%1 steps the shape.</source>
        <translation>%1：切换形状。</translation>
    </message>
    <message>
        <source>%1 steps the time.</source>
        <translation>%1：切换时间。</translation>
    </message>
    <message>
        <source>%1 succeeded</source>
        <translation>%1&#xa0;次成功</translation>
    </message>
    <message>
        <source>%1 switches it off.</source>
        <translation>%1：关闭。</translation>
    </message>
    <message>
        <source>%1 switches it on.</source>
        <translation>%1：开启。</translation>
    </message>
    <message>
        <source>%1 was changed to &quot;%2&quot;.</source>
        <translation>“%1”已改为“%2”。</translation>
    </message>
    <message>
        <source>%1 was not taken</source>
        <translation>未能设置“%1”</translation>
    </message>
    <message>
        <source>%1 was not told</source>
        <translation>未能读取“%1”</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 · protocol faults: %2 · open handles: %3</source>
        <translation>%1 · 协议错误：%2 · 打开的句柄：%3</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1, chunk %2 of %3</source>
        <translation>%1，第&#xa0;%2&#xa0;个数据块，共&#xa0;%3&#xa0;个</translation>
    </message>
    <message>
        <source>%1, frames: %2</source>
        <translation>%1，帧数：%2</translation>
    </message>
    <message>
        <source>%1. The window keeps a size of its own.</source>
        <translation>%1。该窗口保持自己的大小。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>1 Hour</source>
        <translation>1&#xa0;小时</translation>
    </message>
    <message>
        <source>1.5 Hour</source>
        <translation>1.5&#xa0;小时</translation>
    </message>
    <message>
        <source>1.6</source>
        <translation>1.6</translation>
    </message>
    <message>
        <source>1.8</source>
        <translation>1.8</translation>
    </message>
    <message>
        <source>10 min</source>
        <translation>10&#xa0;分钟前</translation>
    </message>
    <message>
        <source>12 Hour</source>
        <translation>12&#xa0;小时</translation>
    </message>
    <message>
        <source>15 min</source>
        <translation>15&#xa0;分钟</translation>
    </message>
    <message>
        <source>2 Hour</source>
        <translation>2&#xa0;小时</translation>
    </message>
    <message>
        <source>2 Zone Rhythm</source>
        <translation>双区律动</translation>
    </message>
    <message>
        <source>2.0</source>
        <translation>2.0</translation>
    </message>
    <message>
        <source>2.2</source>
        <translation>2.2</translation>
    </message>
    <message>
        <source>2.4</source>
        <translation>2.4</translation>
    </message>
    <message>
        <source>2.5 Hour</source>
        <translation>2.5&#xa0;小时</translation>
    </message>
    <message>
        <source>2.6</source>
        <translation>2.6</translation>
    </message>
    <message>
        <source>24 Hour</source>
        <translation>24&#xa0;小时</translation>
    </message>
    <message>
        <source>3 Hour</source>
        <translation>3&#xa0;小时</translation>
    </message>
    <message>
        <source>3.5 Hour</source>
        <translation>3.5&#xa0;小时</translation>
    </message>
    <message>
        <source>30 min</source>
        <translation>30&#xa0;分钟</translation>
    </message>
    <message>
        <source>30s</source>
        <translation>30&#xa0;秒</translation>
    </message>
    <message>
        <source>4 Hour</source>
        <translation>4&#xa0;小时</translation>
    </message>
    <message>
        <source>40 min</source>
        <translation>40&#xa0;分钟</translation>
    </message>
    <message>
        <source>5.4G</source>
        <translation>5.4G</translation>
    </message>
    <message>
        <source>50 min</source>
        <translation>50&#xa0;分钟</translation>
    </message>
    <message>
        <source>5000K</source>
        <translation>5000K</translation>
    </message>
    <message>
        <source>5500K</source>
        <translation>5500K</translation>
    </message>
    <message>
        <source>60 min</source>
        <translation>60&#xa0;分钟</translation>
    </message>
    <message>
        <source>6300K</source>
        <translation>6300K</translation>
    </message>
    <message>
        <source>6500K</source>
        <translation>6500K</translation>
    </message>
    <message>
        <source>7000K</source>
        <translation>7000K</translation>
    </message>
    <message>
        <source>7500K</source>
        <translation>7500K</translation>
    </message>
    <message>
        <source>8 Hour</source>
        <translation>8&#xa0;小时</translation>
    </message>
    <message>
        <source>8.1G</source>
        <translation>8.1G</translation>
    </message>
    <message>
        <source>90 min</source>
        <translation>90&#xa0;分钟</translation>
    </message>
    <message>
        <source>9300K</source>
        <translation>9300K</translation>
    </message>
    <message>
        <source>&lt;font color=white&gt;Getting Disp Dev Infor...&lt;/font&gt;</source>
        <translation>&lt;font color=white&gt;正在获取显示设备信息...&lt;/font&gt;</translation>
    </message>
    <message>
        <source>A WAV file</source>
        <translation>WAV 文件</translation>
    </message>
    <message>
        <source>A balanced picture for every day.</source>
        <translation>均衡的画面，适合日常使用。</translation>
    </message>
    <message>
        <source>A calm white on the wall, for long evenings at the screen.</source>
        <translation>在墙上投射柔和的白光，适合夜间长时间看屏幕。</translation>
    </message>
    <message>
        <source>A circle, for what is in the middle.</source>
        <translation>圆形，适合位于中央的主体。</translation>
    </message>
    <message>
        <source>A colour that can be seen to change is sent, at most one a second.</source>
        <translation>仅在颜色明显变化时发送，每秒最多一次。</translation>
    </message>
    <message>
        <source>A colour that few games have themselves.</source>
        <translation>游戏画面中少见的颜色。</translation>
    </message>
    <message>
        <source>A crosshair that takes the colour that stands out and opens while the picture moves.</source>
        <translation>准星会采用醒目的颜色，并在画面移动时张开。</translation>
    </message>
    <message>
        <source>A dark rim: the eye stays in the middle.</source>
        <translation>边缘较暗，视线停留在中央。</translation>
    </message>
    <message>
        <source>A diagonal and the lines that meet it: for pictures with a slant.</source>
        <translation>一条对角线及与之相交的线，适合有倾斜感的画面。</translation>
    </message>
    <message>
        <source>A dim picture for dark rooms.</source>
        <translation>较暗的画面，适合昏暗的房间。</translation>
    </message>
    <message>
        <source>A faint light, for a dark room.</source>
        <translation>微弱的灯光，适合黑暗的房间。</translation>
    </message>
    <message>
        <source>A light runs around the ring.</source>
        <translation>一道光沿灯环流动。</translation>
    </message>
    <message>
        <source>A line of text that the matrix shows, standing or scrolling.</source>
        <translation>一行文字，在矩阵上静止或滚动显示。</translation>
    </message>
    <message>
        <source>A little above the middle, as games need it that look over a shoulder.</source>
        <translation>略高于中央，适合越肩视角的游戏。</translation>
    </message>
    <message>
        <source>A little below the middle, for a view that is tilted up.</source>
        <translation>略低于中央，适合视角偏上的游戏。</translation>
    </message>
    <message>
        <source>A little cooler than usual.</source>
        <translation>比通常略冷。</translation>
    </message>
    <message>
        <source>A little darker, and a little cheaper.</source>
        <translation>稍暗，略微省电。</translation>
    </message>
    <message>
        <source>A little darker: hardly to be seen, for normal work.</source>
        <translation>略微变暗：几乎看不出来，适合日常工作。</translation>
    </message>
    <message>
        <source>A little faster, without side effects.</source>
        <translation>略微加快，没有副作用。</translation>
    </message>
    <message>
        <source>A little warm, as light at noon.</source>
        <translation>略微偏暖，如同正午的阳光。</translation>
    </message>
    <message>
        <source>A mixture of your own: set its red, green and blue with the sliders below.</source>
        <translation>您自己的配色：用下方的滑块设置红、绿、蓝。</translation>
    </message>
    <message>
        <source>A point of light runs along the belt, like a bead.</source>
        <translation>光点如珠子般沿灯带滑过。</translation>
    </message>
    <message>
        <source>A protractor around the middle, to measure angles.</source>
        <translation>以屏幕中央为圆心的量角器，用来测量角度。</translation>
    </message>
    <message>
        <source>A quarter of the screen&apos;s width: hides least of the first input.</source>
        <translation>屏幕宽度的四分之一：遮住第一路输入最少。</translation>
    </message>
    <message>
        <source>A shade at the rim that is hardly noticed.</source>
        <translation>边缘略暗，几乎察觉不到。</translation>
    </message>
    <message>
        <source>A sheet as large as you set it above.</source>
        <translation>按上方设置的尺寸显示纸张。</translation>
    </message>
    <message>
        <source>A sheet of 125 × 176 mm, as of a paperback.</source>
        <translation>一张&#xa0;125 × 176 mm 的纸，与平装小开本相同。</translation>
    </message>
    <message>
        <source>A sheet of 176 × 250 mm, for books and brochures.</source>
        <translation>一张&#xa0;176 × 250 mm 的纸，适合书籍和小册子。</translation>
    </message>
    <message>
        <source>A sheet of 210 × 297 mm, upright, in the middle of the screen.</source>
        <translation>一张&#xa0;210 × 297 mm 的纸，竖放在屏幕中央。</translation>
    </message>
    <message>
        <source>A soft page for long texts.</source>
        <translation>画面柔和，适合长时间阅读。</translation>
    </message>
    <message>
        <source>A sweep</source>
        <translation>扫频</translation>
    </message>
    <message>
        <source>A third of the screen&apos;s width.</source>
        <translation>屏幕宽度的三分之一。</translation>
    </message>
    <message>
        <source>A tone</source>
        <translation>单音</translation>
    </message>
    <message>
        <source>A very dark rim, for games that play in the middle.</source>
        <translation>边缘很暗，适合集中在中央的游戏。</translation>
    </message>
    <message>
        <source>A white behind the screen that spares the eyes. Warm in the evening, cold by day.</source>
        <translation>屏幕后方的护眼白光。晚上宜用暖光，白天宜用冷光。</translation>
    </message>
    <message>
        <source>A wide gamut for photographs.</source>
        <translation>适合摄影作品的广色域。</translation>
    </message>
    <message>
        <source>A wide gamut under a D50 light.</source>
        <translation>D50&#xa0;光源下的广色域。</translation>
    </message>
    <message>
        <source>AI Dual Mode</source>
        <translation>AI 双模式</translation>
    </message>
    <message>
        <source>Accessory</source>
        <translation>配件</translation>
    </message>
    <message>
        <source>Adaptive-Sync</source>
        <translation>Adaptive-Sync</translation>
    </message>
    <message>
        <source>Add Frame</source>
        <translation>添加帧</translation>
    </message>
    <message>
        <source>Add Scence</source>
        <translation>添加情景</translation>
    </message>
    <message>
        <source>Add a frame first.</source>
        <translation>请先添加一帧。</translation>
    </message>
    <message>
        <source>Adobe</source>
        <translation>Adobe</translation>
    </message>
    <message>
        <source>Adobe Mode</source>
        <translation>Adobe 模式</translation>
    </message>
    <message>
        <source>AdobeRGB</source>
        <translation>AdobeRGB</translation>
    </message>
    <message>
        <source>AdobeRGB(D50)</source>
        <translation>AdobeRGB(D50)</translation>
    </message>
    <message>
        <source>After how many hours of use the next care is due.</source>
        <translation>使用多少小时后需要下一次护理。</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>对齐</translation>
    </message>
    <message>
        <source>Alignment Aid</source>
        <translation>对齐辅助</translation>
    </message>
    <message>
        <source>Alignment_4</source>
        <translation>4&#xa0;分格</translation>
    </message>
    <message>
        <source>Alignment_6</source>
        <translation>6&#xa0;分格</translation>
    </message>
    <message>
        <source>Alignment_9</source>
        <translation>9&#xa0;分格</translation>
    </message>
    <message>
        <source>All colours at once, which turn around the ring.</source>
        <translation>所有颜色同时出现，并沿灯环转动。</translation>
    </message>
    <message>
        <source>All file (*.*)</source>
        <translation>所有文件 (*.*)</translation>
    </message>
    <message>
        <source>All lamps come and go slowly. The quietest effect.</source>
        <translation>所有灯光缓缓明暗，是最平静的灯效。</translation>
    </message>
    <message>
        <source>All lamps follow sound or screen in one colour.</source>
        <translation>所有灯光以同一颜色跟随声音或屏幕。</translation>
    </message>
    <message>
        <source>All shortcuts rest while the switch above is off.</source>
        <translation>上方开关关闭时，所有快捷键均不起作用。</translation>
    </message>
    <message>
        <source>Always the opposite of what lies behind it.</source>
        <translation>始终与背景颜色相反。</translation>
    </message>
    <message>
        <source>Always this socket. The screen stays dark while nothing comes from there.</source>
        <translation>始终使用此接口。没有信号时屏幕保持黑暗。</translation>
    </message>
    <message>
        <source>American broadcasting primaries.</source>
        <translation>美国广播标准的三原色。</translation>
    </message>
    <message>
        <source>Angle Ruler</source>
        <translation>量角器</translation>
    </message>
    <message>
        <source>Angle close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Animate</source>
        <translation>动画</translation>
    </message>
    <message>
        <source>Animate Mode</source>
        <translation>动画模式</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>动画</translation>
    </message>
    <message>
        <source>Another device becomes the default one</source>
        <translation>另一个设备成为默认设备</translation>
    </message>
    <message>
        <source>Another program registers the combination first</source>
        <translation>由另一个程序先注册该组合键</translation>
    </message>
    <message>
        <source>Another program…</source>
        <translation>其他程序…</translation>
    </message>
    <message>
        <source>Answer times, last ten minutes</source>
        <translation>最近&#xa0;10&#xa0;分钟的应答时间</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>应答率</translation>
    </message>
    <message>
        <source>Application is already running</source>
        <translation>程序已在运行</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Arrange the window</source>
        <translation>排列窗口</translation>
    </message>
    <message>
        <source>Arrangement of the windows</source>
        <translation>窗口的排列</translation>
    </message>
    <message>
        <source>Art Design</source>
        <translation>艺术设计</translation>
    </message>
    <message>
        <source>Art Design Mode</source>
        <translation>艺术设计模式</translation>
    </message>
    <message>
        <source>As Auto, with dark parts that stay readable.</source>
        <translation>与“自动”相同，且暗部仍清晰可见。</translation>
    </message>
    <message>
        <source>As Auto, with deep shadows as a film wants them.</source>
        <translation>与“自动”相同，并保留电影般深沉的阴影。</translation>
    </message>
    <message>
        <source>As bright as you set it.</source>
        <translation>保持您设置的亮度。</translation>
    </message>
    <message>
        <source>As fast as it goes. Bright rims may follow what moves.</source>
        <translation>最快。移动物体后可能出现亮边。</translation>
    </message>
    <message>
        <source>As saved: %1 cells a frame, not 1050.</source>
        <translation>同保存的&#xa0;%1&#xa0;格，而非每帧&#xa0;1050&#xa0;格。</translation>
    </message>
    <message>
        <source>Asked again and told; nothing to do.</source>
        <translation>重新读取成功，无需处理。</translation>
    </message>
    <message>
        <source>Asked again; nothing to do.</source>
        <translation>已重新读取，无需处理。</translation>
    </message>
    <message>
        <source>Asleep</source>
        <translation>睡眠中</translation>
    </message>
    <message>
        <source>Assist</source>
        <translation>助攻</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>音频模式</translation>
    </message>
    <message>
        <source>Audio Mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>Audio Settings</source>
        <translation>音频设置</translation>
    </message>
    <message>
        <source>Audio Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Auto-L1</source>
        <translation>自动 L1</translation>
    </message>
    <message>
        <source>Auto-L2</source>
        <translation>自动 L2</translation>
    </message>
    <message>
        <source>Automatic changes</source>
        <translation>每天自动更改</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Back at its old place</source>
        <translation>已回到原位置</translation>
    </message>
    <message>
        <source>Background running</source>
        <translation>正在后台运行</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>条形</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>基本设置</translation>
    </message>
    <message>
        <source>Black Level</source>
        <translation>黑电平</translation>
    </message>
    <message>
        <source>Black and white, like paper.</source>
        <translation>黑白显示，如同纸张。</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>边界</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>呼吸</translation>
    </message>
    <message>
        <source>Bright middle tones, for a bright room.</source>
        <translation>中间调较亮，适合明亮的房间。</translation>
    </message>
    <message>
        <source>Bright on nearly everything but grass.</source>
        <translation>除草地外，几乎在任何背景上都明亮。</translation>
    </message>
    <message>
        <source>Bright parts shine when the signal has the range for it.</source>
        <translation>信号支持时，亮部更加明亮。</translation>
    </message>
    <message>
        <source>Brightens dark scenes. Close = off, Level1 and Level2 = always, Auto-L1 and Auto-L2 = when needed.</source>
        <translation>提亮昏暗的场景。“等级&#xa0;1”和“等级&#xa0;2”始终生效，“自动 L1”和“自动 L2”随画面调整。</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Bring to the front</source>
        <translation>切换到前台</translation>
    </message>
    <message>
        <source>Brings the monitor&apos;s firmware up to date. Leave the monitor switched on until it has finished.</source>
        <translation>启动显示器固件升级程序。升级完成前请勿关闭显示器。</translation>
    </message>
    <message>
        <source>Buffer error</source>
        <translation>缓冲区错误</translation>
    </message>
    <message>
        <source>C</source>
        <translation>C</translation>
    </message>
    <message>
        <source>CAD/CAM</source>
        <translation>CAD/CAM</translation>
    </message>
    <message>
        <source>CAD/CAM Mode</source>
        <translation>CAD/CAM 模式</translation>
    </message>
    <message>
        <source>CEC</source>
        <translation>CEC</translation>
    </message>
    <message>
        <source>CR Enhance</source>
        <translation>对比度增强</translation>
    </message>
    <message>
        <source>CSV file (*.csv);</source>
        <translation>CSV 文件 (*.csv);</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was changed.</source>
        <translation>已取消，未作任何更改。</translation>
    </message>
    <message>
        <source>Care Content</source>
        <translation>护理内容</translation>
    </message>
    <message>
        <source>Care Due</source>
        <translation>需要护理</translation>
    </message>
    <message>
        <source>Care Interval</source>
        <translation>护理间隔</translation>
    </message>
    <message>
        <source>Care Mode</source>
        <translation>护理模式</translation>
    </message>
    <message>
        <source>Care Plan</source>
        <translation>护理计划</translation>
    </message>
    <message>
        <source>Care Reminder</source>
        <translation>护理提醒</translation>
    </message>
    <message>
        <source>Care Running</source>
        <translation>正在护理</translation>
    </message>
    <message>
        <source>Care begins only when you start it.</source>
        <translation>只有您启动时才会护理。</translation>
    </message>
    <message>
        <source>Care evens out how the pixels have aged, so that no picture stays visible. It takes about 6 minutes.</source>
        <translation>护理使像素的老化趋于一致，不留残影。约需&#xa0;6&#xa0;分钟。</translation>
    </message>
    <message>
        <source>Care is due.</source>
        <translation>需要护理了。</translation>
    </message>
    <message>
        <source>Care is due. The picture goes black for about 6 minutes.</source>
        <translation>需要护理了。画面会变黑约&#xa0;6&#xa0;分钟。</translation>
    </message>
    <message>
        <source>Care is due: the monitor begins when it goes to standby.</source>
        <translation>需要护理了：显示器进入待机时会自动开始。</translation>
    </message>
    <message>
        <source>Care is running. Leave the monitor on until the picture is back.</source>
        <translation>正在护理。画面恢复前请勿关闭显示器。</translation>
    </message>
    <message>
        <source>Care takes about 6 minutes, in which the picture is black. It evens out how the pixels have aged; nothing that is open is lost.</source>
        <translation>护理约需&#xa0;6&#xa0;分钟，其间画面为黑色。它使像素的老化趋于一致；已打开的内容不会丢失。</translation>
    </message>
    <message>
        <source>Caret</source>
        <translation>箭头</translation>
    </message>
    <message>
        <source>Cell Size</source>
        <translation>格子大小</translation>
    </message>
    <message>
        <source>Changes take effect when you press &quot;%1&quot;.</source>
        <translation>按下“%1”后更改生效。</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>声道</translation>
    </message>
    <message>
        <source>Choose a mode on the left. On now: %1</source>
        <translation>请在左侧选择模式。当前：%1</translation>
    </message>
    <message>
        <source>Choose an entry on the left.</source>
        <translation>请在左侧选择一项。</translation>
    </message>
    <message>
        <source>Choose the controls</source>
        <translation>选择控件</translation>
    </message>
    <message>
        <source>Choose the scene again, or read everything once.</source>
        <translation>请重新选择情景，或全部读取一次。</translation>
    </message>
    <message>
        <source>Chosen, and switched off now.</source>
        <translation>已选择，当前已关闭。</translation>
    </message>
    <message>
        <source>Cinema colours at a D65 white.</source>
        <translation>D65&#xa0;白点下的影院色彩。</translation>
    </message>
    <message>
        <source>Clean Frame</source>
        <translation>清空帧</translation>
    </message>
    <message>
        <source>Clearly darker: for texts, not for pictures.</source>
        <translation>明显变暗，适合文字，不适合图片。</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>时钟</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>顺时针</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close = dark, Normal = one colour, Effect = it moves, Rhythm = follows sound or screen, Eye Care = calm white.</source>
        <translation>关闭&#xa0;= 熄灯，普通&#xa0;= 单色，灯效&#xa0;= 动态，律动&#xa0;= 跟随声音或屏幕，护眼&#xa0;= 柔和白光。</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>冷</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Color Enchance</source>
        <translation>色彩增强</translation>
    </message>
    <message>
        <source>Color Enhance</source>
        <translation>色彩增强</translation>
    </message>
    <message>
        <source>Color Saturation</source>
        <translation>色彩饱和度</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>色彩空间</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>色温</translation>
    </message>
    <message>
        <source>Colour and brightness follow what this computer plays. For music.</source>
        <translation>颜色和亮度随电脑播放的声音变化，适合音乐。</translation>
    </message>
    <message>
        <source>Combination to press</source>
        <translation>要按下的组合键</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>构图</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>Convo</source>
        <translation>对话</translation>
    </message>
    <message>
        <source>Cool white: text looks crisp.</source>
        <translation>冷白：文字显得清晰。</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>复制报告</translation>
    </message>
    <message>
        <source>Counterclockwise</source>
        <translation>逆时针</translation>
    </message>
    <message>
        <source>Counts down from this. Take as long as you mean to play.</source>
        <translation>从此时间开始倒计时。请按打算游玩的时长选择。</translation>
    </message>
    <message>
        <source>Counts down in a corner, so that you notice how long you have played.</source>
        <translation>在屏幕一角倒计时，提醒您已经玩了多久。</translation>
    </message>
    <message>
        <source>Counts up in a corner, to the time that you choose, and begins again.</source>
        <translation>在屏幕一角计时，到所选时间后重新开始。</translation>
    </message>
    <message>
        <source>Counts up to this and begins again. Take the length of a round.</source>
        <translation>计时到此时间后重新开始。请按一局的时长选择。</translation>
    </message>
    <message>
        <source>Covers least. For a screen that is near.</source>
        <translation>遮挡最少，适合近距离的屏幕。</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>十字</translation>
    </message>
    <message>
        <source>Crosshair Color</source>
        <translation>准星颜色</translation>
    </message>
    <message>
        <source>Crosshair Place</source>
        <translation>准星位置</translation>
    </message>
    <message>
        <source>Crosshair Shape</source>
        <translation>准星形状</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Custom Color</source>
        <translation>自定义颜色</translation>
    </message>
    <message>
        <source>Custom Mode</source>
        <translation>自定义模式</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>自定义尺寸</translation>
    </message>
    <message>
        <source>Cut across</source>
        <translation>横切</translation>
    </message>
    <message>
        <source>Cut upright</source>
        <translation>竖切</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>青色</translation>
    </message>
    <message>
        <source>DCI-P3</source>
        <translation>DCI-P3</translation>
    </message>
    <message>
        <source>DCI-P3 Mode</source>
        <translation>DCI-P3&#xa0;模式</translation>
    </message>
    <message>
        <source>DCI-P3(D65)</source>
        <translation>DCI-P3(D65)</translation>
    </message>
    <message>
        <source>DICOM</source>
        <translation>DICOM</translation>
    </message>
    <message>
        <source>DICOM Mode</source>
        <translation>DICOM 模式</translation>
    </message>
    <message>
        <source>DP Alt Mode</source>
        <translation>DP Alt 模式</translation>
    </message>
    <message>
        <source>DP/Type-C</source>
        <translation>DP/Type-C</translation>
    </message>
    <message>
        <source>DP1</source>
        <translation>DP1</translation>
    </message>
    <message>
        <source>DP2</source>
        <translation>DP2</translation>
    </message>
    <message>
        <source>Dark Programme</source>
        <translation>编程(深色)</translation>
    </message>
    <message>
        <source>Dark and rich in contrast, as films look in a cinema.</source>
        <translation>偏暗且对比强烈，如同影院效果。</translation>
    </message>
    <message>
        <source>Dark parts become a little darker.</source>
        <translation>暗部略微变暗。</translation>
    </message>
    <message>
        <source>Dark places are always a little brighter.</source>
        <translation>暗处始终略微提亮。</translation>
    </message>
    <message>
        <source>Dark places are always much brighter.</source>
        <translation>暗处始终大幅提亮。</translation>
    </message>
    <message>
        <source>Dark places stay dark.</source>
        <translation>暗处保持原样。</translation>
    </message>
    <message>
        <source>Dark scenes become a little brighter, bright ones stay as they are.</source>
        <translation>暗场景略微提亮，亮场景保持不变。</translation>
    </message>
    <message>
        <source>Dark scenes become much brighter, bright ones stay as they are.</source>
        <translation>暗场景大幅提亮，亮场景保持不变。</translation>
    </message>
    <message>
        <source>Dark with the Screen</source>
        <translation>随屏熄灯</translation>
    </message>
    <message>
        <source>Darkens the rim of the screen, so that the middle draws the eye.</source>
        <translation>调暗屏幕边缘，让视线集中在中央。</translation>
    </message>
    <message>
        <source>Darker black, for films and games.</source>
        <translation>黑色更深，适合电影和游戏。</translation>
    </message>
    <message>
        <source>Deep and high tones are stronger, as in a cinema.</source>
        <translation>低音和高音更强，如同影院。</translation>
    </message>
    <message>
        <source>Deep contrast for films.</source>
        <translation>深邃对比，适合观看电影。</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Defeat</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Delete Frame</source>
        <translation>删除帧</translation>
    </message>
    <message>
        <source>Delete layout</source>
        <translation>删除布局</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>桌面</translation>
    </message>
    <message>
        <source>Desktop Reminder</source>
        <translation>桌面提醒</translation>
    </message>
    <message>
        <source>Detection Rate</source>
        <translation>检测速度</translation>
    </message>
    <message>
        <source>Dims after a few minutes without a change.</source>
        <translation>画面几分钟没有变化后变暗。</translation>
    </message>
    <message>
        <source>Dims gently, so that changes are hardly noticed.</source>
        <translation>柔和调光，几乎察觉不到变化。</translation>
    </message>
    <message>
        <source>Dims signs that stand still, such as a station&apos;s logo. Close = off; Low to High are stronger in turn.</source>
        <translation>使静止的图标变暗，例如电视台的台标。关闭&#xa0;= 不启用；从低到高依次增强。</translation>
    </message>
    <message>
        <source>Dims soon: spares the panel most.</source>
        <translation>很快变暗：最能保护面板。</translation>
    </message>
    <message>
        <source>Dims the border between bright and dark, as beside black bars. Close = off; Low to High are stronger in turn.</source>
        <translation>使明暗交界处变暗，例如黑边旁。关闭&#xa0;= 不启用；从低到高依次增强。</translation>
    </message>
    <message>
        <source>Dims the light behind dark parts, so that black is deeper. Close = off; the others are stronger in turn.</source>
        <translation>调暗画面暗部的背光，让黑色更深。各选项的效果依次增强。</translation>
    </message>
    <message>
        <source>Dims the screen while nothing moves. Detection Rate is how soon it notices that.</source>
        <translation>画面静止时使屏幕变暗。检测速度决定多快察觉。</translation>
    </message>
    <message>
        <source>Dims the taskbar, which always stands in one place. Close = off; Low to High are stronger in turn.</source>
        <translation>使始终停在一处的任务栏变暗。关闭&#xa0;= 不启用；从低到高依次增强。</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Display P3</source>
        <translation>Display P3</translation>
    </message>
    <message>
        <source>Display P3 Mode</source>
        <translation>Display P3&#xa0;模式</translation>
    </message>
    <message>
        <source>Display Version</source>
        <translation>显示器版本</translation>
    </message>
    <message>
        <source>Do not save</source>
        <translation>不保存</translation>
    </message>
    <message>
        <source>Dot</source>
        <translation>圆点</translation>
    </message>
    <message>
        <source>Dotted cross</source>
        <translation>带点十字</translation>
    </message>
    <message>
        <source>Double Kill</source>
        <translation>双杀</translation>
    </message>
    <message>
        <source>Draw a line through a zone to cut it, or drag an edge. With the keyboard: the arrows choose a zone, Ctrl and an arrow moves its edge.</source>
        <translation>在区域中画一条线即可切开，也可以拖动边线。使用键盘时：方向键选择区域，Ctrl 加方向键移动其边线。</translation>
    </message>
    <message>
        <source>Draw frames cell by cell; the matrix plays them in a loop.</source>
        <translation>逐格绘制各帧，矩阵会循环播放。</translation>
    </message>
    <message>
        <source>Drawn by the monitor itself, so it works in every game and is no program that a game could see.</source>
        <translation>由显示器自身绘制，适用于所有游戏，游戏不会检测到任何程序。</translation>
    </message>
    <message>
        <source>Draws guide lines for composing a picture. Close = none, Trichotomy = into thirds, Round = a circle.</source>
        <translation>显示构图参考线。“三分法”将画面分成三等份。</translation>
    </message>
    <message>
        <source>Draws lines that divide the screen. Close = none; Alignment_4, Alignment_6 and Alignment_9 = into 4, 6 or 9 parts.</source>
        <translation>在屏幕上显示分格线，将画面分成&#xa0;4、6&#xa0;或&#xa0;9&#xa0;格。</translation>
    </message>
    <message>
        <source>Draws the outline of a sheet on the screen. Close = none, Custom Size = as large as you set it.</source>
        <translation>在屏幕上显示纸张的轮廓。“自定义尺寸”按您设定的大小显示。</translation>
    </message>
    <message>
        <source>Drop a chunk</source>
        <translation>丢失数据块</translation>
    </message>
    <message>
        <source>Duplicate Frame</source>
        <translation>复制帧</translation>
    </message>
    <message>
        <source>DyDs</source>
        <translation>DyDs</translation>
    </message>
    <message>
        <source>DyDs TECH</source>
        <translation>DyDs TECH</translation>
    </message>
    <message>
        <source>Dynamic Crosshair</source>
        <translation>动态准星</translation>
    </message>
    <message>
        <source>Dynamic Crosshair Color</source>
        <translation>动态准星颜色</translation>
    </message>
    <message>
        <source>Dynamic Crosshair Size</source>
        <translation>动态准星大小</translation>
    </message>
    <message>
        <source>Dynamic OD</source>
        <translation>动态 OD</translation>
    </message>
    <message>
        <source>E-Book</source>
        <translation>电子书</translation>
    </message>
    <message>
        <source>E-Book Mode</source>
        <translation>电子书模式</translation>
    </message>
    <message>
        <source>E-Book Mode is black and white: colours need another scene mode.</source>
        <translation>电子书模式为黑白显示：要调整色彩，请换用其他情景模式。</translation>
    </message>
    <message>
        <source>EBU</source>
        <translation>EBU</translation>
    </message>
    <message>
        <source>EBU Mode</source>
        <translation>EBU 模式</translation>
    </message>
    <message>
        <source>Easy to find, and covers what it points at.</source>
        <translation>容易看到，但会遮住目标。</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>灯效</translation>
    </message>
    <message>
        <source>Emberline</source>
        <translation>Emberline</translation>
    </message>
    <message>
        <source>Enlarges the middle of the screen, so that what is far away is seen.</source>
        <translation>放大屏幕中央，看清远处的目标。</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>擦除</translation>
    </message>
    <message>
        <source>European broadcasting primaries.</source>
        <translation>欧洲广播标准的三原色。</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Every packet holds 7001 frames until the button is released</source>
        <translation>松开按钮前，每个数据包都含&#xa0;7001&#xa0;帧</translation>
    </message>
    <message>
        <source>Every picture is shown with the usual range.</source>
        <translation>所有画面都以普通动态范围显示。</translation>
    </message>
    <message>
        <source>Every request takes 400 ms longer</source>
        <translation>每个请求多花&#xa0;400&#xa0;毫秒</translation>
    </message>
    <message>
        <source>Everything that the panel can show.</source>
        <translation>面板所能显示的全部色彩。</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Export Animate</source>
        <translation>导出动画</translation>
    </message>
    <message>
        <source>Extensible, floating point</source>
        <translation>扩展格式，浮点</translation>
    </message>
    <message>
        <source>Extensible, integer</source>
        <translation>扩展格式，整数</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <translation>护眼</translation>
    </message>
    <message>
        <source>Eye Care Mode</source>
        <translation>护眼模式</translation>
    </message>
    <message>
        <source>Eyeshield Remind</source>
        <translation>护眼提醒</translation>
    </message>
    <message>
        <source>Falling Peaks</source>
        <translation>峰值回落</translation>
    </message>
    <message>
        <source>Far above the middle, for games that aim high on the screen.</source>
        <translation>远高于中央，适合瞄准点偏高的游戏。</translation>
    </message>
    <message>
        <source>Far below the middle, for games that aim low on the screen.</source>
        <translation>远低于中央，适合瞄准点偏低的游戏。</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>快</translation>
    </message>
    <message>
        <source>Fast enough for every resolution and refresh rate.</source>
        <translation>足以支持所有分辨率和刷新率。</translation>
    </message>
    <message>
        <source>Fast, for games. Light edges may be seen on some grey tones.</source>
        <translation>快速，适合游戏。部分灰阶可能出现亮边。</translation>
    </message>
    <message>
        <source>Faster: less smear behind what moves.</source>
        <translation>更快：移动物体的拖影更少。</translation>
    </message>
    <message>
        <source>File is null.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>Fine lines and clear edges for drawings.</source>
        <translation>线条精细、边缘清晰，适合制图。</translation>
    </message>
    <message>
        <source>First control</source>
        <translation>第一个控件</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>闪烁</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>流动</translation>
    </message>
    <message>
        <source>Focus Dimming</source>
        <translation>聚焦调暗</translation>
    </message>
    <message>
        <source>Focus Dimming Level</source>
        <translation>聚焦调暗强度</translation>
    </message>
    <message>
        <source>Follow Desc</source>
        <translation>为程序指定情景模式：该程序位于前台时显示器自动切换，离开后恢复基础情景。</translation>
    </message>
    <message>
        <source>Follow Setting</source>
        <translation>情景跟随设置</translation>
    </message>
    <message>
        <source>For a laptop whose picture comes by its USB cable. Off if that socket only carries data and power.</source>
        <translation>适合通过 USB 线缆传输画面的笔记本电脑。若该接口只传输数据和供电，请关闭。</translation>
    </message>
    <message>
        <source>For a player or a console that is to wake the monitor. Quick Boot cannot be on at the same time.</source>
        <translation>让播放器或游戏机唤醒显示器。不能与“快速启动”同时开启。</translation>
    </message>
    <message>
        <source>For a screen that is left alone for long. Films and games move and are not dimmed.</source>
        <translation>适合长时间无人操作的屏幕。电影和游戏画面在动，不会变暗。</translation>
    </message>
    <message>
        <source>For a screen that is used for pictures and texts in turn. Leave it off while you judge colours.</source>
        <translation>适合交替查看图片和文字的屏幕。需要判断颜色时请关闭。</translation>
    </message>
    <message>
        <source>For charging a telephone at the monitor, and for keyboard and mouse. Off saves power in standby.</source>
        <translation>可在显示器上为手机充电，并使用键盘和鼠标。关闭可在待机时省电。</translation>
    </message>
    <message>
        <source>For code on a dark ground.</source>
        <translation>适合深色背景的代码。</translation>
    </message>
    <message>
        <source>For code on a light ground.</source>
        <translation>适合浅色背景的代码。</translation>
    </message>
    <message>
        <source>For computers, which send 0 to 255.</source>
        <translation>适合发送&#xa0;0&#xa0;至&#xa0;255&#xa0;的电脑。</translation>
    </message>
    <message>
        <source>For fast games in which a crosshair that stands still gets lost.</source>
        <translation>适合静止准星容易看丢的快节奏游戏。</translation>
    </message>
    <message>
        <source>For finding out why a monitor does not answer as it should.</source>
        <translation>帮助查明显示器为何没有正常应答。</translation>
    </message>
    <message>
        <source>For games in which every moment counts. For films and work leave it off.</source>
        <translation>适合分秒必争的游戏。看电影或工作时请关闭。</translation>
    </message>
    <message>
        <source>For games in which the middle decides. Maps and figures at the rim get darker too.</source>
        <translation>适合胜负取决于画面中央的游戏。边缘的地图和数字也会变暗。</translation>
    </message>
    <message>
        <source>For games that have no crosshair of their own, or one that is hard to see.</source>
        <translation>适合没有准星或准星不清楚的游戏。</translation>
    </message>
    <message>
        <source>For games with far targets. It covers a part of the picture.</source>
        <translation>适合目标较远的游戏。会遮住一部分画面。</translation>
    </message>
    <message>
        <source>For games, whose pictures come now faster, now slower. The computer must have it switched on as well.</source>
        <translation>适合画面时快时慢的游戏。电脑上也须开启此功能。</translation>
    </message>
    <message>
        <source>For most games.</source>
        <translation>适合大多数游戏。</translation>
    </message>
    <message>
        <source>For placing windows, pictures or a drawing evenly around the middle.</source>
        <translation>便于将窗口、图片或图形均匀地排在中央四周。</translation>
    </message>
    <message>
        <source>For players and consoles that send 16 to 235. With a computer black looks grey.</source>
        <translation>适合发送&#xa0;16&#xa0;至&#xa0;235&#xa0;的播放器和游戏机。用于电脑时黑色会发灰。</translation>
    </message>
    <message>
        <source>For scenes that are near.</source>
        <translation>适合近处的场景。</translation>
    </message>
    <message>
        <source>For targets that move: what is in the ring is near enough.</source>
        <translation>适合移动的目标：在圆环内即可。</translation>
    </message>
    <message>
        <source>For wide landscapes; coarse.</source>
        <translation>适合开阔的场景，画面较粗糙。</translation>
    </message>
    <message>
        <source>Found at once, also from far away.</source>
        <translation>从远处也能立刻看到。</translation>
    </message>
    <message>
        <source>Four bytes of the next scene-mode block get lost</source>
        <translation>下一个情景模式数据块将丢失四个字节</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>框线</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>第&#xa0;%1&#xa0;帧</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>帧</translation>
    </message>
    <message>
        <source>Frames/s</source>
        <translation>帧/秒</translation>
    </message>
    <message>
        <source>Frames: %1</source>
        <translation>帧数：%1</translation>
    </message>
    <message>
        <source>Frames: %1, of which the accessory takes %2</source>
        <translation>帧数：%1，配件最多接收&#xa0;%2&#xa0;帧</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>From now on another program has it.</source>
        <translation>从现在起由另一个程序占用。</translation>
    </message>
    <message>
        <source>Front Brightness</source>
        <translation>前灯亮度</translation>
    </message>
    <message>
        <source>Front Color</source>
        <translation>前灯颜色</translation>
    </message>
    <message>
        <source>Front and Rear</source>
        <translation>前灯与后灯</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Gama</source>
        <translation>伽马</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>游戏</translation>
    </message>
    <message>
        <source>Game Aid</source>
        <translation>游戏辅助</translation>
    </message>
    <message>
        <source>Game Crosshair</source>
        <translation>游戏准星</translation>
    </message>
    <message>
        <source>Game Rush</source>
        <translation>游戏冲刺</translation>
    </message>
    <message>
        <source>Game Time</source>
        <translation>游戏计时</translation>
    </message>
    <message>
        <source>Game Time Length</source>
        <translation>游戏计时时长</translation>
    </message>
    <message>
        <source>Game Time Place</source>
        <translation>游戏计时位置</translation>
    </message>
    <message>
        <source>Game VS</source>
        <translation>游戏对战</translation>
    </message>
    <message>
        <source>Game report</source>
        <translation>游戏报告</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>伽马</translation>
    </message>
    <message>
        <source>General Settings</source>
        <translation>常规设置</translation>
    </message>
    <message>
        <source>Give the zone away</source>
        <translation>并入相邻区域</translation>
    </message>
    <message>
        <source>Global Rhythm</source>
        <translation>全局律动</translation>
    </message>
    <message>
        <source>Go deaf</source>
        <translation>不再应答</translation>
    </message>
    <message>
        <source>Golden Section</source>
        <translation>黄金分割</translation>
    </message>
    <message>
        <source>Gravity Sensor</source>
        <translation>重力感应</translation>
    </message>
    <message>
        <source>Gray Response</source>
        <translation>灰阶响应</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>H-Position</source>
        <translation>水平位置</translation>
    </message>
    <message>
        <source>HDMI1</source>
        <translation>HDMI1</translation>
    </message>
    <message>
        <source>HDMI2</source>
        <translation>HDMI2</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>HDTV Video</source>
        <translation>HDTV 视频</translation>
    </message>
    <message>
        <source>Halo Control</source>
        <translation>光晕控制</translation>
    </message>
    <message>
        <source>Halves</source>
        <translation>二等分</translation>
    </message>
    <message>
        <source>Hanging</source>
        <translation>倒挂</translation>
    </message>
    <message>
        <source>HawkEye Brightness</source>
        <translation>鹰眼亮度</translation>
    </message>
    <message>
        <source>HawkEye Contrast</source>
        <translation>鹰眼对比度</translation>
    </message>
    <message>
        <source>HawkEye Sharpness</source>
        <translation>鹰眼锐度</translation>
    </message>
    <message>
        <source>HawkEye Vision</source>
        <translation>鹰眼视野</translation>
    </message>
    <message>
        <source>HawkEye Zoom</source>
        <translation>鹰眼放大倍数</translation>
    </message>
    <message>
        <source>Headshot</source>
        <translation>爆头</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>High-definition television.</source>
        <translation>高清电视。</translation>
    </message>
    <message>
        <source>High-definition video work.</source>
        <translation>高清视频制作。</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>高亮</translation>
    </message>
    <message>
        <source>Hold Ctrl or Alt and press a letter or a digit.</source>
        <translation>请按住 Ctrl 或 Alt 再按字母或数字。</translation>
    </message>
    <message>
        <source>Hotkey conflict</source>
        <translation>快捷键冲突</translation>
    </message>
    <message>
        <source>How and where the monitor shows its menu, and how soon it sleeps without a signal (No Signal Timer).</source>
        <translation>显示器自身菜单的显示方式和位置。“无信号定时器”设定无信号多久后休眠。</translation>
    </message>
    <message>
        <source>How bright the enlarged part is. Level3 = as the rest; higher ones show what is in the shade.</source>
        <translation>放大部分的亮度。“等级&#xa0;3”与其余画面相同，等级越高越能看清阴影中的细节。</translation>
    </message>
    <message>
        <source>How bright the lamp shines that tells that the monitor is on. Close = dark, Level3 = brightest.</source>
        <translation>显示器开启时指示灯的亮度。“等级&#xa0;3”最亮。</translation>
    </message>
    <message>
        <source>How bright the middle tones are. The higher the value, the darker.</source>
        <translation>中间色调的亮度。数值越大，画面越暗。</translation>
    </message>
    <message>
        <source>How clear its edges are. Level3 = as they come; lower ones hide coarse dots, higher ones show outlines.</source>
        <translation>放大部分边缘的清晰度。“等级&#xa0;3”保持原样，较低的等级淡化颗粒，较高的等级突出轮廓。</translation>
    </message>
    <message>
        <source>How far light and dark are apart in it. Level3 = as the rest; higher ones help in fog and dust.</source>
        <translation>放大部分的明暗差别。“等级&#xa0;3”与其余画面相同，等级越高越适合雾和沙尘。</translation>
    </message>
    <message>
        <source>How long the monitor waits without a signal before it sleeps.</source>
        <translation>无信号时，显示器等待多久后休眠。</translation>
    </message>
    <message>
        <source>How often a day the tool may change the monitor without your doing.</source>
        <translation>每天最多允许工具自动更改显示器多少次。</translation>
    </message>
    <message>
        <source>How pictures with a high dynamic range are shown. Close = off, Auto = when the signal has it.</source>
        <translation>高动态范围画面的显示方式。“自动”在信号为 HDR 时启用。</translation>
    </message>
    <message>
        <source>How the LED matrix behind the monitor shines. Matrix Lamp and Clock: Close = off, Open = on.</source>
        <translation>显示器背后的 LED 矩阵的显示方式。</translation>
    </message>
    <message>
        <source>How the lamps move in the mode &quot;Effect&quot;. The picture plays it as it will look.</source>
        <translation>“灯效”模式下灯光的变化方式。图中会播放实际效果。</translation>
    </message>
    <message>
        <source>How the link to the monitor has been since the program started.</source>
        <translation>本工具启动以来与显示器的连接状况。</translation>
    </message>
    <message>
        <source>How the print will look under a D55 light.</source>
        <translation>印刷品在 D55&#xa0;光源下的效果。</translation>
    </message>
    <message>
        <source>How the print will look under a D58 light.</source>
        <translation>印刷品在 D58&#xa0;光源下的效果。</translation>
    </message>
    <message>
        <source>How the print will look.</source>
        <translation>印刷品的最终效果。</translation>
    </message>
    <message>
        <source>How this tool starts, which language it speaks and what it may do by itself.</source>
        <translation>本工具的启动方式、语言，以及可以自动执行的操作。</translation>
    </message>
    <message>
        <source>How warm white looks. 5000K = warmest, 9300K = coldest, User1 to User3 = your own mixtures.</source>
        <translation>白色的冷暖。5000K 最暖，9300K 最冷，用户&#xa0;1&#xa0;至用户&#xa0;3&#xa0;由您自行调配。</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Hue R Y G C B M</source>
        <translation>色相 R Y G C B M</translation>
    </message>
    <message>
        <source>Huge packets</source>
        <translation>超大数据包</translation>
    </message>
    <message>
        <source>I/O Settings</source>
        <translation>I/O 设置</translation>
    </message>
    <message>
        <source>ISP</source>
        <translation>ISP</translation>
    </message>
    <message>
        <source>If you switch the monitor on several times a day. CEC cannot be on at the same time.</source>
        <translation>适合每天多次开启显示器。不能与 CEC 同时开启。</translation>
    </message>
    <message>
        <source>If you turn the screen now and then: the monitor&apos;s menu turns with it.</source>
        <translation>适合偶尔旋转屏幕：显示器菜单会随之旋转。</translation>
    </message>
    <message>
        <source>Image sticking protection: clears what a picture leaves behind as soon as it is gone.</source>
        <translation>残影防护：画面消失后立即清除其残留。</translation>
    </message>
    <message>
        <source>Import Aligned</source>
        <translation>对齐导入</translation>
    </message>
    <message>
        <source>Import Animate</source>
        <translation>导入动画</translation>
    </message>
    <message>
        <source>In the very middle, where most games aim.</source>
        <translation>正中央，大多数游戏的瞄准点。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Input Signal</source>
        <translation>输入信号</translation>
    </message>
    <message>
        <source>Inset Place</source>
        <translation>子窗口位置</translation>
    </message>
    <message>
        <source>Inset Size</source>
        <translation>子窗口大小</translation>
    </message>
    <message>
        <source>Is it on, its cable plugged in, and DDC/CI on in its menu?</source>
        <translation>请检查显示器是否开机、线缆是否接好、菜单中 DDC/CI 是否开启。</translation>
    </message>
    <message>
        <source>It answers again; nothing to do.</source>
        <translation>显示器已恢复应答，无需处理。</translation>
    </message>
    <message>
        <source>It is a link, which is not followed.</source>
        <translation>它是链接，程序不会通过链接写入。</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>它不是文件。</translation>
    </message>
    <message>
        <source>It may not be changed.</source>
        <translation>不允许修改。</translation>
    </message>
    <message>
        <source>Keeps what matters away from the edges.</source>
        <translation>让重要的内容远离边缘。</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>键盘</translation>
    </message>
    <message>
        <source>Keyboard and mouse at the monitor belong to the computer at the Type-B socket.</source>
        <translation>接在显示器上的键盘和鼠标属于 Type-B 接口的电脑。</translation>
    </message>
    <message>
        <source>Keyboard and mouse at the monitor belong to the computer at the Type-C socket.</source>
        <translation>接在显示器上的键盘和鼠标属于 Type-C 接口的电脑。</translation>
    </message>
    <message>
        <source>Keys of the numeric pad cannot be used.</source>
        <translation>不能使用数字小键盘的按键。</translation>
    </message>
    <message>
        <source>Kill</source>
        <translation>击杀</translation>
    </message>
    <message>
        <source>Knowledge</source>
        <translation>知识库</translation>
    </message>
    <message>
        <source>LANGUAGE_ADD_KEY</source>
        <translation>添加快捷键</translation>
    </message>
    <message>
        <source>LANGUAGE_SHORTCUTKEY</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>LANGUAGE_SHORTCUTKEY_DESC</source>
        <translation>为显示器功能指定快捷键，在桌面任何位置都有效：Ctrl 或 Alt 加字母或数字，按 Backspace 可清除。</translation>
    </message>
    <message>
        <source>LED matrix</source>
        <translation>LED 矩阵</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>灯</translation>
    </message>
    <message>
        <source>Lamp Belt</source>
        <translation>灯带</translation>
    </message>
    <message>
        <source>Lamp Belt Brightness</source>
        <translation>灯带亮度</translation>
    </message>
    <message>
        <source>Lamp Belt Color</source>
        <translation>灯带颜色</translation>
    </message>
    <message>
        <source>Lamp Belt Effect</source>
        <translation>灯带灯效</translation>
    </message>
    <message>
        <source>Lamp Belt Front Color</source>
        <translation>灯带前灯颜色</translation>
    </message>
    <message>
        <source>Lamp Belt Rear Color</source>
        <translation>灯带后灯颜色</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>大</translation>
    </message>
    <message>
        <source>Last care: %1</source>
        <translation>上次护理：%1</translation>
    </message>
    <message>
        <source>Last errors</source>
        <translation>最近的错误</translation>
    </message>
    <message>
        <source>Last requests to the monitor</source>
        <translation>最近发给显示器的请求</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍后</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Leave it on, unless you see the clearing itself as a flicker when windows close.</source>
        <translation>建议保持开启，除非关闭窗口时您会看到清除造成的闪烁。</translation>
    </message>
    <message>
        <source>Leaves the target free but for its very middle.</source>
        <translation>除正中心外不遮挡目标。</translation>
    </message>
    <message>
        <source>Leaves the target free.</source>
        <translation>不遮挡目标。</translation>
    </message>
    <message>
        <source>Less blue light for long days.</source>
        <translation>减少蓝光，适合长时间工作。</translation>
    </message>
    <message>
        <source>Lets the monitor switch between its two modes by itself. Close = off, Open = on.</source>
        <translation>让显示器在两种模式之间自动切换。</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>强度</translation>
    </message>
    <message>
        <source>Level1</source>
        <translation>等级&#xa0;1</translation>
    </message>
    <message>
        <source>Level1 follows great changes only, for a quiet room; Level5 also small ones.</source>
        <translation>“等级&#xa0;1”只跟随大的变化，适合安静的房间；“等级&#xa0;5”也跟随小的变化。</translation>
    </message>
    <message>
        <source>Level2</source>
        <translation>等级&#xa0;2</translation>
    </message>
    <message>
        <source>Level3</source>
        <translation>等级&#xa0;3</translation>
    </message>
    <message>
        <source>Level4</source>
        <translation>等级&#xa0;4</translation>
    </message>
    <message>
        <source>Level5</source>
        <translation>等级&#xa0;5</translation>
    </message>
    <message>
        <source>Lifts thin lines and dark surfaces of drawings.</source>
        <translation>让图纸的细线和暗面更清楚。</translation>
    </message>
    <message>
        <source>Light Brightness</source>
        <translation>灯光亮度</translation>
    </message>
    <message>
        <source>Light Color</source>
        <translation>灯光颜色</translation>
    </message>
    <message>
        <source>Light Color B</source>
        <translation>灯光颜色 蓝</translation>
    </message>
    <message>
        <source>Light Color G</source>
        <translation>灯光颜色 绿</translation>
    </message>
    <message>
        <source>Light Color R</source>
        <translation>灯光颜色 红</translation>
    </message>
    <message>
        <source>Light Direction</source>
        <translation>灯光方向</translation>
    </message>
    <message>
        <source>Light Effect</source>
        <translation>灯光效果</translation>
    </message>
    <message>
        <source>Light Level</source>
        <translation>灯光等级</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>灯光模式</translation>
    </message>
    <message>
        <source>Light Programme</source>
        <translation>编程(浅色)</translation>
    </message>
    <message>
        <source>Light Sensor</source>
        <translation>光线感应</translation>
    </message>
    <message>
        <source>Light Speed</source>
        <translation>灯光速度</translation>
    </message>
    <message>
        <source>Light Temperature</source>
        <translation>灯光色温</translation>
    </message>
    <message>
        <source>Light Timer</source>
        <translation>灯光定时</translation>
    </message>
    <message>
        <source>Light and dark follow each other around the ring.</source>
        <translation>明暗沿灯环交替流动。</translation>
    </message>
    <message>
        <source>Light in Standby</source>
        <translation>待机亮灯</translation>
    </message>
    <message>
        <source>Lighter = used longer that day, ring = cared for.</source>
        <translation>越亮&#xa0;= 当天使用越久，圆环&#xa0;= 做过护理。</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>Lines at 38 and 62 per cent: balanced, and less rigid than thirds.</source>
        <translation>线位于&#xa0;38% 和&#xa0;62% 处，比三分法更自然均衡。</translation>
    </message>
    <message>
        <source>Lines at thirds: put what matters where they cross.</source>
        <translation>三等分线，将重点放在交点上。</translation>
    </message>
    <message>
        <source>Listening…</source>
        <translation>正在获取声音…</translation>
    </message>
    <message>
        <source>Live frames</source>
        <translation>实时帧</translation>
    </message>
    <message>
        <source>Localdimming</source>
        <translation>区域调光</translation>
    </message>
    <message>
        <source>Locks the monitor&apos;s own menu, so that nobody changes it by accident.</source>
        <translation>锁定显示器自身的菜单，避免误操作。</translation>
    </message>
    <message>
        <source>Look for the monitor again</source>
        <translation>重新查找显示器</translation>
    </message>
    <message>
        <source>Lose a reply</source>
        <translation>丢失应答</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>低蓝光</translation>
    </message>
    <message>
        <source>Low Health</source>
        <translation>低血量</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>MPCS</source>
        <translation>MPCS</translation>
    </message>
    <message>
        <source>MPCS/LD</source>
        <translation>MPCS/LD</translation>
    </message>
    <message>
        <source>MPCS/LD leaves no room for the Ull levels; they need another scene mode.</source>
        <translation>MPCS/LD 模式下不能使用 Ull 等级，请换用其他情景模式。</translation>
    </message>
    <message>
        <source>MPCS/ULL FPS</source>
        <translation>MPCS/ULL FPS</translation>
    </message>
    <message>
        <source>MPCS/ULL FPS offers the Ull levels only; the others need another scene mode.</source>
        <translation>MPCS/ULL FPS 模式只提供 Ull 等级，其他等级请换用其他情景模式。</translation>
    </message>
    <message>
        <source>Mac View</source>
        <translation>Mac 视图</translation>
    </message>
    <message>
        <source>Machine Select</source>
        <translation>选择显示器</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>洋红</translation>
    </message>
    <message>
        <source>Main and side</source>
        <translation>主区和侧区</translation>
    </message>
    <message>
        <source>Make it your own</source>
        <translation>按喜好调整</translation>
    </message>
    <message>
        <source>Makes colours stronger. 0 = off.</source>
        <translation>让色彩更鲜艳。0&#xa0;为关闭。</translation>
    </message>
    <message>
        <source>Makes dark parts lighter or darker, so that you see what is in the shadows.</source>
        <translation>调整暗部的明暗，让阴影中的细节清晰可见。</translation>
    </message>
    <message>
        <source>Makes what moves look sharper. Close = off; Low to High and Ull-Level1 to 3 are stronger in turn.</source>
        <translation>让运动画面更清晰。从“低”到“高”以及“Ull 等级&#xa0;1”到“Ull 等级&#xa0;3”，效果依次增强。</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>Marks along two edges, to measure and compare lengths.</source>
        <translation>沿两条边显示刻度，用来测量和比较长度。</translation>
    </message>
    <message>
        <source>Matches notebooks with a Display P3 screen.</source>
        <translation>与配备 Display P3&#xa0;屏幕的笔记本电脑一致。</translation>
    </message>
    <message>
        <source>Matrix Brightness</source>
        <translation>矩阵亮度</translation>
    </message>
    <message>
        <source>Matrix Form</source>
        <translation>矩阵形状</translation>
    </message>
    <message>
        <source>Matrix Lamp</source>
        <translation>矩阵灯</translation>
    </message>
    <message>
        <source>Matrix Mode1</source>
        <translation>矩阵模式&#xa0;1</translation>
    </message>
    <message>
        <source>Matrix Mode2</source>
        <translation>矩阵模式&#xa0;2</translation>
    </message>
    <message>
        <source>Matrix Mode3</source>
        <translation>矩阵模式&#xa0;3</translation>
    </message>
    <message>
        <source>Matrix Power Off</source>
        <translation>矩阵关机模式</translation>
    </message>
    <message>
        <source>Matrix Standby</source>
        <translation>矩阵待机模式</translation>
    </message>
    <message>
        <source>Matrix of the simulated accessory</source>
        <translation>模拟配件的矩阵</translation>
    </message>
    <message>
        <source>Maximum 192 frames</source>
        <translation>最多&#xa0;192&#xa0;帧</translation>
    </message>
    <message>
        <source>Median answer</source>
        <translation>应答中位数</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Menu Lock</source>
        <translation>菜单锁定</translation>
    </message>
    <message>
        <source>Menu lock already opened!</source>
        <translation>菜单锁定已开启！</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中间</translation>
    </message>
    <message>
        <source>Middle tones a little brighter than usual.</source>
        <translation>中间调比通常略亮。</translation>
    </message>
    <message>
        <source>Middle tones a little darker, for films in a dim room.</source>
        <translation>中间调略暗，适合在昏暗的房间看电影。</translation>
    </message>
    <message>
        <source>Middle+</source>
        <translation>中间偏上</translation>
    </message>
    <message>
        <source>Middle-</source>
        <translation>中间偏下</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>Mix format</source>
        <translation>混音格式</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Mode %1</source>
        <translation>模式&#xa0;%1</translation>
    </message>
    <message>
        <source>Mode1</source>
        <translation>模式&#xa0;1</translation>
    </message>
    <message>
        <source>Mode2</source>
        <translation>模式&#xa0;2</translation>
    </message>
    <message>
        <source>Mode3</source>
        <translation>模式&#xa0;3</translation>
    </message>
    <message>
        <source>Mode4</source>
        <translation>模式&#xa0;4</translation>
    </message>
    <message>
        <source>Mode5</source>
        <translation>模式&#xa0;5</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>显示器</translation>
    </message>
    <message>
        <source>Monitor Health</source>
        <translation>显示器状况</translation>
    </message>
    <message>
        <source>More than two fifths of the screen&apos;s width: small text stays readable.</source>
        <translation>超过屏幕宽度的五分之二：小字也能看清。</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>滚动方式</translation>
    </message>
    <message>
        <source>Moves now and then, for everyday work.</source>
        <translation>偶尔移动，适合日常工作。</translation>
    </message>
    <message>
        <source>Moves often: for menus and maps that stand still for hours.</source>
        <translation>经常移动：适合菜单、地图等长时间静止的画面。</translation>
    </message>
    <message>
        <source>Moves seldom: nobody notices it.</source>
        <translation>很少移动：不会被察觉。</translation>
    </message>
    <message>
        <source>Moves the whole picture by a few pixels now and then, so that edges do not burn in. Close = off.</source>
        <translation>不时将整个画面移动几个像素，避免边缘烧屏。关闭&#xa0;= 不启用。</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>电影</translation>
    </message>
    <message>
        <source>Movie Mode</source>
        <translation>电影模式</translation>
    </message>
    <message>
        <source>Much darker: the best protection where the same picture stands for hours.</source>
        <translation>明显变暗：同一画面停留数小时时保护效果最好。</translation>
    </message>
    <message>
        <source>Multi-window</source>
        <translation>多窗口</translation>
    </message>
    <message>
        <source>Music Mode</source>
        <translation>音乐模式</translation>
    </message>
    <message>
        <source>Must match the computer&apos;s signal. RGB Auto = found out by itself, RGB Limit = 16 to 235, RGB Full = 0 to 255.</source>
        <translation>需与电脑的信号一致。“RGB 自动”自动识别，有限范围为&#xa0;16&#xa0;至&#xa0;235，全范围为&#xa0;0&#xa0;至&#xa0;255。</translation>
    </message>
    <message>
        <source>My layout</source>
        <translation>我的布局</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>无</translation>
    </message>
    <message>
        <source>NTSC Video</source>
        <translation>NTSC 视频</translation>
    </message>
    <message>
        <source>NTSC television.</source>
        <translation>NTSC 制式电视。</translation>
    </message>
    <message>
        <source>Name of the layout</source>
        <translation>布局名称</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>原生</translation>
    </message>
    <message>
        <source>Native Mode</source>
        <translation>原生模式</translation>
    </message>
    <message>
        <source>Nearly the usual white, a touch warmer.</source>
        <translation>接近通用的白色，稍暖一点。</translation>
    </message>
    <message>
        <source>New device</source>
        <translation>新设备</translation>
    </message>
    <message>
        <source>New layout</source>
        <translation>新建布局</translation>
    </message>
    <message>
        <source>Next form</source>
        <translation>下一款</translation>
    </message>
    <message>
        <source>Next value</source>
        <translation>下一个值</translation>
    </message>
    <message>
        <source>Next zone</source>
        <translation>下一区域</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>夜间</translation>
    </message>
    <message>
        <source>Night Loom</source>
        <translation>Night Loom</translation>
    </message>
    <message>
        <source>Night Mode</source>
        <translation>夜间模式</translation>
    </message>
    <message>
        <source>Night View C.T</source>
        <translation>夜间色温</translation>
    </message>
    <message>
        <source>Night Vision</source>
        <translation>夜视</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>No Signal Timer</source>
        <translation>无信号定时器</translation>
    </message>
    <message>
        <source>No Type-C data cable or HDMI/DP + USB data cable connected.</source>
        <translation>未连接 Type-C 数据线或 HDMI/DP + USB 数据线。</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>No answer for %1 s</source>
        <translation>%1&#xa0;秒无应答</translation>
    </message>
    <message>
        <source>No care has been seen yet: hours count from the first start of this tool.</source>
        <translation>尚无护理记录：小时数从首次启动本工具起计算。</translation>
    </message>
    <message>
        <source>No file path selected.</source>
        <translation>未选择文件路径。</translation>
    </message>
    <message>
        <source>No limit</source>
        <translation>不限</translation>
    </message>
    <message>
        <source>No programs yet: add one and choose its scene.</source>
        <translation>还没有程序：请添加程序并选择其情景。</translation>
    </message>
    <message>
        <source>No shortcuts yet: choose a function above and add it.</source>
        <translation>还没有快捷键：请在上方选择功能并添加。</translation>
    </message>
    <message>
        <source>No window is in front: press on the one that you mean first.</source>
        <translation>前面没有窗口：请先点击要排列的窗口。</translation>
    </message>
    <message>
        <source>No zone beside it can take this one.</source>
        <translation>没有可并入的相邻区域。</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>噪声</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>None.</source>
        <translation>无。</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>普通</translation>
    </message>
    <message>
        <source>Not chosen here yet. The accessory does not tell what it has.</source>
        <translation>尚未在此选择，配件不会告知其当前设置。</translation>
    </message>
    <message>
        <source>Not told: %1</source>
        <translation>未读到：%1</translation>
    </message>
    <message>
        <source>Not uploaded from here. In Custom Mode it is &quot;%1&quot;.</source>
        <translation>尚未从此处写入。对应自定义模式“%1”。</translation>
    </message>
    <message>
        <source>Nothing above the point: for shots that fall.</source>
        <translation>瞄准点上方没有遮挡，适合有下坠的弹道。</translation>
    </message>
    <message>
        <source>Nothing can be heard or seen: the lamps keep their last colour.</source>
        <translation>听不到声音或看不到画面：灯光保持最后的颜色。</translation>
    </message>
    <message>
        <source>Nothing is dimmed.</source>
        <translation>不会变暗。</translation>
    </message>
    <message>
        <source>Nothing is drawn over the picture.</source>
        <translation>画面上不叠加任何内容。</translation>
    </message>
    <message>
        <source>Nothing is followed but in one of the two rhythm modes.</source>
        <translation>仅在两种律动模式下才会跟随。</translation>
    </message>
    <message>
        <source>Nothing is heard: no program plays, or the sound output is gone.</source>
        <translation>没有声音：没有程序在播放，或声音输出已断开。</translation>
    </message>
    <message>
        <source>Nothing moves but in the mode &quot;Effect&quot;.</source>
        <translation>仅在“灯效”模式下才有变化。</translation>
    </message>
    <message>
        <source>Nothing plays</source>
        <translation>无播放</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>OSD Language</source>
        <translation>OSD 语言</translation>
    </message>
    <message>
        <source>OSD Setting</source>
        <translation>OSD 设置</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Office Aid</source>
        <translation>办公辅助</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Old place</source>
        <translation>原位置</translation>
    </message>
    <message>
        <source>Oled Care</source>
        <translation>OLED 护理</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>On its way to the monitor.</source>
        <translation>正在发送到显示器。</translation>
    </message>
    <message>
        <source>On now.</source>
        <translation>当前设置。</translation>
    </message>
    <message>
        <source>On now: %1</source>
        <translation>当前：%1</translation>
    </message>
    <message>
        <source>On-screen menu</source>
        <translation>屏幕菜单</translation>
    </message>
    <message>
        <source>One colour melts into the next. Off = it changes at once.</source>
        <translation>颜色逐渐过渡到下一种。关闭&#xa0;= 立即变换。</translation>
    </message>
    <message>
        <source>One colour that stands still. Calm enough for work.</source>
        <translation>固定的单色灯光，平静，适合工作。</translation>
    </message>
    <message>
        <source>One input fills the screen.</source>
        <translation>一路输入占满整个屏幕。</translation>
    </message>
    <message>
        <source>Onion Skin</source>
        <translation>洋葱皮</translation>
    </message>
    <message>
        <source>Only the modes &quot;Normal&quot; and &quot;Effect&quot; have a colour of their own.</source>
        <translation>仅“普通”和“灯效”模式可以设置颜色。</translation>
    </message>
    <message>
        <source>Only the monitor that this tool sets can be read.</source>
        <translation>只能读取本工具所设置的显示器。</translation>
    </message>
    <message>
        <source>Only the small window of PIP has a size and a place.</source>
        <translation>只有 PIP 的小窗口才有大小和位置。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>Open cross</source>
        <translation>开口十字</translation>
    </message>
    <message>
        <source>Open the page</source>
        <translation>打开网页</translation>
    </message>
    <message>
        <source>Out of order</source>
        <translation>顺序错误</translation>
    </message>
    <message>
        <source>Output Range</source>
        <translation>输出范围</translation>
    </message>
    <message>
        <source>PAL &amp; SECAM</source>
        <translation>PAL &amp; SECAM</translation>
    </message>
    <message>
        <source>PAL and SECAM television.</source>
        <translation>PAL 和 SECAM 制式电视。</translation>
    </message>
    <message>
        <source>PBP</source>
        <translation>PBP</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>PIP</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Paper Mode</source>
        <translation>纸张模式</translation>
    </message>
    <message>
        <source>Paper_A4</source>
        <translation>A4&#xa0;纸</translation>
    </message>
    <message>
        <source>Paper_B5</source>
        <translation>B5&#xa0;纸</translation>
    </message>
    <message>
        <source>Paper_B6</source>
        <translation>B6&#xa0;纸</translation>
    </message>
    <message>
        <source>Parameters of the mode</source>
        <translation>模式的参数</translation>
    </message>
    <message>
        <source>Pearl</source>
        <translation>流珠</translation>
    </message>
    <message>
        <source>Photo(P3-D65)</source>
        <translation>照片(P3-D65)</translation>
    </message>
    <message>
        <source>Photographs at a D65 white.</source>
        <translation>D65&#xa0;白点下的照片。</translation>
    </message>
    <message>
        <source>Picture Enhance</source>
        <translation>画质增强</translation>
    </message>
    <message>
        <source>Picture by picture: two inputs side by side, each on half of the screen, to work on both.</source>
        <translation>画面并排：两路输入左右各占半屏，便于同时处理。</translation>
    </message>
    <message>
        <source>Picture in picture: a second input in a small window over the first, to keep an eye on another computer.</source>
        <translation>画中画：第二路输入显示在小窗口里，叠在第一路之上，便于留意另一台电脑。</translation>
    </message>
    <message>
        <source>Pictures are shown as they come.</source>
        <translation>画面原样显示。</translation>
    </message>
    <message>
        <source>Pixel Shift</source>
        <translation>像素移位</translation>
    </message>
    <message>
        <source>Pixels change as fast as the panel does by itself. Nothing is driven harder.</source>
        <translation>像素按面板本身的速度变化，不额外加速。</translation>
    </message>
    <message>
        <source>Pixels change faster and motion smears less. Close = off, Topspeed = fastest, which may leave bright edges.</source>
        <translation>加快像素变化，减少拖影。“极速”最快，但可能出现亮边。</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Plain, floating point</source>
        <translation>普通格式，浮点</translation>
    </message>
    <message>
        <source>Plain, integer</source>
        <translation>普通格式，整数</translation>
    </message>
    <message>
        <source>Playback Level</source>
        <translation>播放等级</translation>
    </message>
    <message>
        <source>Played</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Playing Interval</source>
        <translation>播放间隔</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Point at an event to see its picture.</source>
        <translation>指向事件即可查看其图案。</translation>
    </message>
    <message>
        <source>Power LED</source>
        <translation>电源指示灯</translation>
    </message>
    <message>
        <source>Power Off Mode</source>
        <translation>关机模式</translation>
    </message>
    <message>
        <source>Power Saving</source>
        <translation>节能</translation>
    </message>
    <message>
        <source>Power for devices at the monitor&apos;s USB sockets, and the picture through the Type-C socket (DP Alt Mode).</source>
        <translation>为接在显示器 USB 接口上的设备供电，以及通过 Type-C 接口传输画面（DP Alt 模式）。</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Press a number. That of the window&apos;s own zone gives it its old place back. Esc closes.</source>
        <translation>按数字键选择。再按窗口所在区域的数字，窗口回到原位置。Esc 关闭。</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>印刷模式</translation>
    </message>
    <message>
        <source>Print(P3-D50)</source>
        <translation>印刷(P3-D50)</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Proofs under a D50 light.</source>
        <translation>D50&#xa0;光源下的打样。</translation>
    </message>
    <message>
        <source>Pull out</source>
        <translation>拔出</translation>
    </message>
    <message>
        <source>Pull out in mid-transfer</source>
        <translation>传输中拔出</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>紫色</translation>
    </message>
    <message>
        <source>Puts the window in front into a part of the screen. Here you choose how the screen is divided.</source>
        <translation>把最前面的窗口放到屏幕的一部分。在这里选择屏幕如何划分。</translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation>二维码</translation>
    </message>
    <message>
        <source>QUORVEL desk</source>
        <translation>QUORVEL 模拟台</translation>
    </message>
    <message>
        <source>Quarters</source>
        <translation>四等分</translation>
    </message>
    <message>
        <source>Questions and answers about your monitor, in your web browser.</source>
        <translation>在网页浏览器中查看有关显示器的常见问题与解答。</translation>
    </message>
    <message>
        <source>Quick Boot</source>
        <translation>快速启动</translation>
    </message>
    <message>
        <source>Quiet: seen best on snow and bright walls.</source>
        <translation>不张扬：在雪地和明亮的墙面上最醒目。</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>RGB Auto</source>
        <translation>RGB 自动</translation>
    </message>
    <message>
        <source>RGB Full</source>
        <translation>RGB 全范围</translation>
    </message>
    <message>
        <source>RGB Limit</source>
        <translation>RGB 有限范围</translation>
    </message>
    <message>
        <source>Rainbow</source>
        <translation>彩虹</translation>
    </message>
    <message>
        <source>Raises the contrast between light and dark parts. 0 = off.</source>
        <translation>增强明暗部分的对比。0&#xa0;为关闭。</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>采样率</translation>
    </message>
    <message>
        <source>Read everything once</source>
        <translation>全部读取一次</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>阅读</translation>
    </message>
    <message>
        <source>Reading Mode</source>
        <translation>阅读模式</translation>
    </message>
    <message>
        <source>Reading sample 0123</source>
        <translation>阅读示例&#xa0;0123</translation>
    </message>
    <message>
        <source>Reading: %1 of %2</source>
        <translation>正在读取：%1 / %2</translation>
    </message>
    <message>
        <source>Rear Brightness</source>
        <translation>后灯亮度</translation>
    </message>
    <message>
        <source>Rear Color</source>
        <translation>后灯颜色</translation>
    </message>
    <message>
        <source>Rec.709</source>
        <translation>Rec.709</translation>
    </message>
    <message>
        <source>Rec.709 Mode</source>
        <translation>Rec.709&#xa0;模式</translation>
    </message>
    <message>
        <source>Recommended to set [Expand These Monitors] in the System-&gt; Screen when operating multiple monitors.</source>
        <translation>使用多台显示器时，建议在“系统 -&gt; 屏幕”中设置“扩展这些显示器”。</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>Red, green and blue belong to User1, User2 and User3 of Color Temperature.</source>
        <translation>红、绿、蓝只用于色温的“用户&#xa0;1”“用户&#xa0;2”“用户&#xa0;3”。</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Reduces the glow around bright things on a dark ground.</source>
        <translation>减弱深色背景上明亮物体周围的光晕。</translation>
    </message>
    <message>
        <source>Refresh Rate</source>
        <translation>刷新率</translation>
    </message>
    <message>
        <source>Refresh Rate Place</source>
        <translation>刷新率位置</translation>
    </message>
    <message>
        <source>Refuse format</source>
        <translation>拒绝格式</translation>
    </message>
    <message>
        <source>Refuse writes</source>
        <translation>拒绝写入</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes each time the chosen span has passed. Close = off.</source>
        <translation>每过所选的时间，提醒您让眼睛休息。</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation>正在生成</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>请求</translation>
    </message>
    <message>
        <source>Reset Factory</source>
        <translation>恢复出厂设置</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Rhythm</source>
        <translation>律动</translation>
    </message>
    <message>
        <source>Rhythm Color</source>
        <translation>律动颜色</translation>
    </message>
    <message>
        <source>Rhythm Color L</source>
        <translation>律动颜色 左</translation>
    </message>
    <message>
        <source>Rhythm Color R</source>
        <translation>律动颜色 右</translation>
    </message>
    <message>
        <source>Rhythm Level</source>
        <translation>律动等级</translation>
    </message>
    <message>
        <source>Rhythm Source</source>
        <translation>律动来源</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>圆环</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>圆形</translation>
    </message>
    <message>
        <source>Row %1, cell %2: %3</source>
        <translation>第&#xa0;%1&#xa0;行第&#xa0;%2&#xa0;格：%3</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>标尺</translation>
    </message>
    <message>
        <source>Run on startup</source>
        <translation>开机启动</translation>
    </message>
    <message>
        <source>SMPTE-C</source>
        <translation>SMPTE-C</translation>
    </message>
    <message>
        <source>SMPTE-C Mode</source>
        <translation>SMPTE-C 模式</translation>
    </message>
    <message>
        <source>SR</source>
        <translation>SR</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Saturation R Y G C B M</source>
        <translation>饱和度 R Y G C B M</translation>
    </message>
    <message>
        <source>Saturation follows Color Enchance while that is above 0.</source>
        <translation>色彩增强大于&#xa0;0&#xa0;时，饱和度由它决定。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save Animate</source>
        <translation>保存动画</translation>
    </message>
    <message>
        <source>Save Data</source>
        <translation>保存数据</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>Save, export or import the animation first.</source>
        <translation>请先保存、导出或导入动画。</translation>
    </message>
    <message>
        <source>Scan it with a phone to read more about your monitor.</source>
        <translation>用手机扫描，了解更多显示器信息。</translation>
    </message>
    <message>
        <source>Scence Follow</source>
        <translation>情景跟随</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>情景模式</translation>
    </message>
    <message>
        <source>Scene block</source>
        <translation>情景数据块</translation>
    </message>
    <message>
        <source>Scene block: one part came late</source>
        <translation>情景数据块：有一部分迟到</translation>
    </message>
    <message>
        <source>Scene block: one part did not come</source>
        <translation>情景数据块：有一部分未收到</translation>
    </message>
    <message>
        <source>Scene mode</source>
        <translation>情景模式</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>Screen Splitter</source>
        <translation>分屏</translation>
    </message>
    <message>
        <source>Screen of the simulated monitor</source>
        <translation>模拟显示器的屏幕</translation>
    </message>
    <message>
        <source>Scroll Left</source>
        <translation>向左滚动</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>向右滚动</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>向下滚动</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>向上滚动</translation>
    </message>
    <message>
        <source>Second control</source>
        <translation>第二个控件</translation>
    </message>
    <message>
        <source>Second tone</source>
        <translation>第二音</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>栏目</translation>
    </message>
    <message>
        <source>Seen best in dark scenes.</source>
        <translation>在昏暗的场景中最醒目。</translation>
    </message>
    <message>
        <source>Seen best in the dark and on blue.</source>
        <translation>在黑暗中和蓝色上最醒目。</translation>
    </message>
    <message>
        <source>Seen best on green and grey, as in woods and towns.</source>
        <translation>在绿色和灰色上最醒目，例如树林和城市。</translation>
    </message>
    <message>
        <source>Seen best on sand, fire and rust.</source>
        <translation>在沙地、火焰和锈色上最醒目。</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Select File</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>全不选</translation>
    </message>
    <message>
        <source>Sent again and taken; nothing to do.</source>
        <translation>再次发送后已接受，无需处理。</translation>
    </message>
    <message>
        <source>Service Settings</source>
        <translation>服务设置</translation>
    </message>
    <message>
        <source>Set %1 back to &quot;%2&quot;</source>
        <translation>将“%1”改回“%2”</translation>
    </message>
    <message>
        <source>Set everything back to how the monitor left the factory? The screen goes dark for a few seconds.</source>
        <translation>要将显示器的所有设置恢复为出厂状态吗？屏幕会黑屏几秒钟。</translation>
    </message>
    <message>
        <source>Sets everything in the monitor back to how it left the factory.</source>
        <translation>将显示器的所有设置恢复为出厂状态。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Shadow Balance</source>
        <translation>暗部平衡</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>形状</translation>
    </message>
    <message>
        <source>Sharp motion with local dimming.</source>
        <translation>动态清晰，并支持区域调光。</translation>
    </message>
    <message>
        <source>Sharp movement for games.</source>
        <translation>运动画面清晰，适合游戏。</translation>
    </message>
    <message>
        <source>Sharp movement with a short delay, for fast games.</source>
        <translation>运动画面清晰且延迟低，适合快节奏游戏。</translation>
    </message>
    <message>
        <source>Sharper still, with a short delay.</source>
        <translation>更加清晰，延迟低。</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>锐度</translation>
    </message>
    <message>
        <source>Short flashes. Not for people who do not bear flashing light.</source>
        <translation>短促的闪光。对闪光敏感者请勿使用。</translation>
    </message>
    <message>
        <source>Shortcut Key</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Shortcut overlay</source>
        <translation>快捷键提示</translation>
    </message>
    <message>
        <source>Shortens the delay between your hand and the picture in fast games. Adaptive-Sync cannot be chosen meanwhile.</source>
        <translation>缩短快节奏游戏中操作到画面的延迟。开启期间无法选择 Adaptive-Sync。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Show Time(s)</source>
        <translation>显示时间(秒)</translation>
    </message>
    <message>
        <source>Show the zones</source>
        <translation>显示区域</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>显示内容</translation>
    </message>
    <message>
        <source>Shows a ruler on the screen. Angle close = off, Ruler = for lengths, Angle Ruler = for angles.</source>
        <translation>在屏幕上显示标尺。“标尺”用于量长度，“量角器”用于量角度。</translation>
    </message>
    <message>
        <source>Shows guide lines that help to line things up. Close = off, Open = on.</source>
        <translation>显示参考线，帮助您对齐内容。</translation>
    </message>
    <message>
        <source>Shows in a corner how many pictures a second the monitor gets.</source>
        <translation>在屏幕一角显示显示器每秒收到的画面数。</translation>
    </message>
    <message>
        <source>Shows on the desktop what a shortcut has just changed.</source>
        <translation>在桌面上显示快捷键刚刚更改的内容。</translation>
    </message>
    <message>
        <source>Shows two inputs at once. Drag the small window of PIP to a corner, or one of its edges to a size.</source>
        <translation>同时显示两路输入。可将 PIP 的小窗口拖到角落，或拖动其边缘改变大小。</translation>
    </message>
    <message>
        <source>Silence</source>
        <translation>无声</translation>
    </message>
    <message>
        <source>Silences the monitor for a while; the volume stays as it is set.</source>
        <translation>让显示器暂时静音，音量设置保持不变。</translation>
    </message>
    <message>
        <source>Simulated monitor</source>
        <translation>模拟显示器</translation>
    </message>
    <message>
        <source>Single points light up here and there.</source>
        <translation>光点此起彼伏地亮起。</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>睡眠</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>慢</translation>
    </message>
    <message>
        <source>Slower, and steadier with long or old cables.</source>
        <translation>较慢，使用长线或旧线时更稳定。</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>小</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>平滑</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>柔和</translation>
    </message>
    <message>
        <source>Soft Changes</source>
        <translation>柔和过渡</translation>
    </message>
    <message>
        <source>Softproof</source>
        <translation>Softproof</translation>
    </message>
    <message>
        <source>Softproof(D55)</source>
        <translation>Softproof(D55)</translation>
    </message>
    <message>
        <source>Softproof(D58)</source>
        <translation>Softproof(D58)</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>Sound = what this computer plays, Screen = the picture&apos;s edges. Higher levels follow smaller changes.</source>
        <translation>声音&#xa0;= 本机播放的声音，屏幕&#xa0;= 画面边缘的颜色。等级越高，跟随的变化越细微。</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation>声音输出</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>频谱</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Standard Mode</source>
        <translation>标准模式</translation>
    </message>
    <message>
        <source>Standby Mode</source>
        <translation>待机模式</translation>
    </message>
    <message>
        <source>Standing</source>
        <translation>静止</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>星光</translation>
    </message>
    <message>
        <source>Start care</source>
        <translation>开始护理</translation>
    </message>
    <message>
        <source>Static Icon</source>
        <translation>静态图标</translation>
    </message>
    <message>
        <source>Still Picture</source>
        <translation>静止画面</translation>
    </message>
    <message>
        <source>Stop service</source>
        <translation>停止服务</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>秒表</translation>
    </message>
    <message>
        <source>Stopwatch Place</source>
        <translation>秒表位置</translation>
    </message>
    <message>
        <source>Stopwatch Time</source>
        <translation>秒表时间</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>强</translation>
    </message>
    <message>
        <source>Super Resolution</source>
        <translation>超分辨率</translation>
    </message>
    <message>
        <source>Super Resolution: makes blurred or enlarged pictures look sharper. 0 = off.</source>
        <translation>超分辨率：让模糊或放大的画面更清晰。0&#xa0;为关闭。</translation>
    </message>
    <message>
        <source>Switch off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>Switch this row on to change its keys.</source>
        <translation>开启这一行的开关后才能更改按键。</translation>
    </message>
    <message>
        <source>Switched off.</source>
        <translation>已关闭。</translation>
    </message>
    <message>
        <source>Switched on.</source>
        <translation>已开启。</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>系统设置</translation>
    </message>
    <message>
        <source>Take one that goes with the wall: light on a coloured wall looks different.</source>
        <translation>请按墙面选择：灯光照在有色的墙上会有不同的效果。</translation>
    </message>
    <message>
        <source>Take the corner in which nothing stands that you need.</source>
        <translation>请选择没有所需内容的角落。</translation>
    </message>
    <message>
        <source>Taken by another</source>
        <translation>被占用</translation>
    </message>
    <message>
        <source>Takes blue out of the picture, which is easier on the eyes. 0 = off.</source>
        <translation>减少画面中的蓝光，让眼睛更舒适。0&#xa0;为关闭。</translation>
    </message>
    <message>
        <source>Tapering</source>
        <translation>锥形</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>任务栏</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Text Mode</source>
        <translation>文字模式</translation>
    </message>
    <message>
        <source>The APP will reload data when switching machines.</source>
        <translation>切换显示器时，程序将重新加载数据。</translation>
    </message>
    <message>
        <source>The APP will restart automatically when switching languages.</source>
        <translation>切换语言时，程序将自动重新启动。</translation>
    </message>
    <message>
        <source>The LED matrix moves with the sound that this computer plays. Close = off, Open = on.</source>
        <translation>LED 矩阵随电脑播放的声音变化。</translation>
    </message>
    <message>
        <source>The accessory becomes the next of its models; the button is up while it is the first</source>
        <translation>配件变为下一个型号；为第一个型号时按钮弹起</translation>
    </message>
    <message>
        <source>The accessory cannot be reached. What you choose goes to it with the next change.</source>
        <translation>无法连接配件。您的选择会随下一次更改一起发送。</translation>
    </message>
    <message>
        <source>The accessory did not take everything.</source>
        <translation>配件没有接收全部数据。</translation>
    </message>
    <message>
        <source>The accessory has it, but Animate Mode cannot show it: %1</source>
        <translation>配件已接收，但动画模式无法显示：%1</translation>
    </message>
    <message>
        <source>The accessory is at work: wait until it has finished, or cancel the work on its page.</source>
        <translation>配件正在工作：请等待完成，或在其页面上取消。</translation>
    </message>
    <message>
        <source>The accessory shows what this computer plays as soon as the music mode is open.</source>
        <translation>开启音乐模式后，配件会显示本机正在播放的声音。</translation>
    </message>
    <message>
        <source>The accessory takes %1 of the %2 frames.</source>
        <translation>共&#xa0;%2&#xa0;帧，配件只接收前&#xa0;%1&#xa0;帧。</translation>
    </message>
    <message>
        <source>The accessory takes no report until the button is released</source>
        <translation>松开按钮前，配件不接收任何报告</translation>
    </message>
    <message>
        <source>The answer to the next read never arrives</source>
        <translation>下一次读取收不到应答</translation>
    </message>
    <message>
        <source>The belt stands still in its colour.</source>
        <translation>灯带保持自己的颜色，静止不动。</translation>
    </message>
    <message>
        <source>The brightest light, for a bright room.</source>
        <translation>最亮的灯光，适合明亮的房间。</translation>
    </message>
    <message>
        <source>The brightest light, seen across a bright room.</source>
        <translation>最亮的灯光，在明亮的房间里也能看到。</translation>
    </message>
    <message>
        <source>The brightness follows the light in the room. Close = off, Open = on.</source>
        <translation>亮度随室内光线变化。</translation>
    </message>
    <message>
        <source>The cable is pulled out at the eighth report from now</source>
        <translation>从现在起第八个报告时拔出线缆</translation>
    </message>
    <message>
        <source>The cable is pulled out until the button is released</source>
        <translation>线缆保持拔出，直到松开按钮</translation>
    </message>
    <message>
        <source>The colour of the belt along the lower edge. Auto = runs through all colours.</source>
        <translation>底边灯带的颜色。自动&#xa0;= 依次变换所有颜色。</translation>
    </message>
    <message>
        <source>The colour of the belt at the back of the foot.</source>
        <translation>底座后侧灯带的颜色。</translation>
    </message>
    <message>
        <source>The colour of the belt at the front of the foot.</source>
        <translation>底座前侧灯带的颜色。</translation>
    </message>
    <message>
        <source>The colour of the light on the desk. White is best for reading and writing.</source>
        <translation>桌面灯光的颜色。白色最适合读写。</translation>
    </message>
    <message>
        <source>The colour of the light on the wall behind the screen.</source>
        <translation>屏幕后墙面灯光的颜色。</translation>
    </message>
    <message>
        <source>The colour of the steady light and of the effects. Auto = runs through all colours.</source>
        <translation>“普通”和“灯效”模式的颜色。自动&#xa0;= 依次变换所有颜色。</translation>
    </message>
    <message>
        <source>The colours of the cinema.</source>
        <translation>影院的色彩。</translation>
    </message>
    <message>
        <source>The computer and its monitors sleep until the button is released</source>
        <translation>松开按钮前，电脑及其显示器处于睡眠状态</translation>
    </message>
    <message>
        <source>The deepest black. A glow may show around bright things.</source>
        <translation>黑色最深。明亮物体周围可能出现光晕。</translation>
    </message>
    <message>
        <source>The disk did not take everything.</source>
        <translation>磁盘未能写入全部内容。</translation>
    </message>
    <message>
        <source>The drawn frames are not saved. Save them now?</source>
        <translation>绘制的帧尚未保存。现在保存吗？</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>文件无法读取：%1</translation>
    </message>
    <message>
        <source>The file cannot be written: %1</source>
        <translation>文件无法写入：%1</translation>
    </message>
    <message>
        <source>The file has become too large.</source>
        <translation>文件过大。</translation>
    </message>
    <message>
        <source>The file holds %1 frames; the first %2 were taken.</source>
        <translation>文件中有&#xa0;%1&#xa0;帧，只导入了前&#xa0;%2&#xa0;帧。</translation>
    </message>
    <message>
        <source>The file holds no whole frame.</source>
        <translation>文件中没有完整的帧。</translation>
    </message>
    <message>
        <source>The form of the matrix that you have: what is shown is drawn for it.</source>
        <translation>请选择您的矩阵的形状，画面会按此绘制。</translation>
    </message>
    <message>
        <source>The grey scale of medical pictures.</source>
        <translation>医学影像的灰阶。</translation>
    </message>
    <message>
        <source>The hotkey you set is occupied,please reset it again!</source>
        <translation>您设置的快捷键已被占用，请重新设置！</translation>
    </message>
    <message>
        <source>The lamp belt along the lower edge and around the foot has a light of its own.</source>
        <translation>底边和底座四周的灯带有独立的灯光。</translation>
    </message>
    <message>
        <source>The lamp in front lights the desk, the one at the rear the wall: less contrast for tired eyes.</source>
        <translation>前灯照亮桌面，后灯照亮墙面：减小明暗反差，缓解眼睛疲劳。</translation>
    </message>
    <message>
        <source>The lamp is dark. Only the picture tells that the monitor is on.</source>
        <translation>指示灯不亮，只有画面表明显示器已开启。</translation>
    </message>
    <message>
        <source>The lamps behind the screen are dark.</source>
        <translation>屏幕背后的灯不亮。</translation>
    </message>
    <message>
        <source>The lamps take the colours of the picture&apos;s edges. For films and games.</source>
        <translation>灯光采用画面边缘的颜色，适合电影和游戏。</translation>
    </message>
    <message>
        <source>The language of the monitor&apos;s own menu, not of this tool.</source>
        <translation>显示器自身菜单的语言，而不是本工具的语言。</translation>
    </message>
    <message>
        <source>The layout has no such zone.</source>
        <translation>布局中没有这个区域。</translation>
    </message>
    <message>
        <source>The left and the right half follow each its own side. For films.</source>
        <translation>左右两半各自跟随自己的一侧，适合看电影。</translation>
    </message>
    <message>
        <source>The light behind the picture is even. Best for text.</source>
        <translation>背光均匀，最适合阅读文字。</translation>
    </message>
    <message>
        <source>The light flows along the belt.</source>
        <translation>灯光沿灯带流动。</translation>
    </message>
    <message>
        <source>The light moves by itself. For games and guests.</source>
        <translation>灯光自动变化，适合游戏和聚会。</translation>
    </message>
    <message>
        <source>The lighting goes out and comes back with the screen.</source>
        <translation>灯光随屏幕一同熄灭和亮起。</translation>
    </message>
    <message>
        <source>The lighting goes out by itself after this time. Close = it stays on.</source>
        <translation>灯光在此时间后自动熄灭。关闭&#xa0;= 一直亮着。</translation>
    </message>
    <message>
        <source>The lighting stays on while the monitor sleeps, as a light for the night.</source>
        <translation>显示器待机时灯光保持亮起，可作夜灯。</translation>
    </message>
    <message>
        <source>The maker&apos;s own tuning.</source>
        <translation>厂商专属调校。</translation>
    </message>
    <message>
        <source>The matrix shows the time of day. Close = off, Open = on.</source>
        <translation>在矩阵上显示当前时间。</translation>
    </message>
    <message>
        <source>The monitor and devices at its HDMI sockets switch each other on and off.</source>
        <translation>让显示器与接在 HDMI 接口上的设备一同开机和关机。</translation>
    </message>
    <message>
        <source>The monitor answers nothing until the button is released</source>
        <translation>显示器不再应答，直到松开按钮</translation>
    </message>
    <message>
        <source>The monitor begins by itself when it goes to standby.</source>
        <translation>显示器进入待机时自动开始。</translation>
    </message>
    <message>
        <source>The monitor comes on faster, but needs more power while it is off.</source>
        <translation>显示器开启更快，但关闭时耗电略多。</translation>
    </message>
    <message>
        <source>The monitor did not confirm this value.</source>
        <translation>显示器没有确认此值。</translation>
    </message>
    <message>
        <source>The monitor did not take &quot;%1&quot;.</source>
        <translation>显示器没有接受“%1”。</translation>
    </message>
    <message>
        <source>The monitor did not take the reset.</source>
        <translation>显示器未执行重置。</translation>
    </message>
    <message>
        <source>The monitor did not take the size.</source>
        <translation>显示器未接受该尺寸。</translation>
    </message>
    <message>
        <source>The monitor did not take this setting.</source>
        <translation>显示器未接受此设置。</translation>
    </message>
    <message>
        <source>The monitor does not answer; the reading was given up.</source>
        <translation>显示器没有应答，读取已放弃。</translation>
    </message>
    <message>
        <source>The monitor does not remind you.</source>
        <translation>显示器不提醒您。</translation>
    </message>
    <message>
        <source>The monitor finds out which range the computer sends.</source>
        <translation>显示器自动识别电脑发送的范围。</translation>
    </message>
    <message>
        <source>The monitor from behind, with its lamps</source>
        <translation>显示器背面及其灯光</translation>
    </message>
    <message>
        <source>The monitor has a value that is none of these.</source>
        <translation>显示器的值不在这些选项之中。</translation>
    </message>
    <message>
        <source>The monitor has not told this value yet.</source>
        <translation>尚未从显示器读取此值。</translation>
    </message>
    <message>
        <source>The monitor has not told when the next care is due.</source>
        <translation>显示器尚未告知下次护理的时间。</translation>
    </message>
    <message>
        <source>The monitor has not told yet which functions it has.</source>
        <translation>显示器尚未告知它有哪些功能。</translation>
    </message>
    <message>
        <source>The monitor is changing its scene mode.</source>
        <translation>显示器正在切换情景模式。</translation>
    </message>
    <message>
        <source>The monitor itself says on the screen that care is due.</source>
        <translation>需要护理时，由显示器自己在屏幕上提示。</translation>
    </message>
    <message>
        <source>The monitor keeps pace with the game: no torn or jerky pictures. Game Rush must be off.</source>
        <translation>显示器与游戏帧率同步，画面不撕裂、不卡顿。需先关闭“游戏冲刺”。</translation>
    </message>
    <message>
        <source>The monitor notices when its screen is turned upright. Close = off, Open = on.</source>
        <translation>显示器感应屏幕是否转为竖放。</translation>
    </message>
    <message>
        <source>The monitor reminds you each time that this has passed. Look far away for a minute then.</source>
        <translation>每过这段时间显示器会提醒您。请远眺一分钟。</translation>
    </message>
    <message>
        <source>The monitor takes no value until the button is released</source>
        <translation>显示器不接受任何值，直到松开按钮</translation>
    </message>
    <message>
        <source>The monitor that this was about is no longer in use. Nothing was sent.</source>
        <translation>这原本针对的显示器已不在使用，未发送任何内容。</translation>
    </message>
    <message>
        <source>The monitor took only a part of the colour: its lamps now show another one.</source>
        <translation>显示器只接受了颜色的一部分：灯光现在显示的是另一种颜色。</translation>
    </message>
    <message>
        <source>The monitor uses less power. Close = off, Level2 saves the most.</source>
        <translation>让显示器更省电。“等级&#xa0;2”最省电。</translation>
    </message>
    <message>
        <source>The next care is due after %1 more hours of use.</source>
        <translation>再使用&#xa0;%1&#xa0;小时后需要下一次护理。</translation>
    </message>
    <message>
        <source>The next client is not initialised</source>
        <translation>下一个客户端不会被初始化</translation>
    </message>
    <message>
        <source>The next packet cannot be fetched</source>
        <translation>下一个数据包无法读取</translation>
    </message>
    <message>
        <source>The next packet is refused, as if the one before were still held</source>
        <translation>拒绝下一个数据包，如同上一个仍被占用</translation>
    </message>
    <message>
        <source>The page %1 could not be opened.</source>
        <translation>无法打开网页&#xa0;%1。</translation>
    </message>
    <message>
        <source>The picture as the factory set it.</source>
        <translation>出厂设定的画面。</translation>
    </message>
    <message>
        <source>The picture goes black for about 6 minutes, and the monitor must stay on. Begin now?</source>
        <translation>画面会变黑约&#xa0;6&#xa0;分钟，其间请勿关闭显示器。现在开始吗？</translation>
    </message>
    <message>
        <source>The picture stays where it is.</source>
        <translation>画面保持不动。</translation>
    </message>
    <message>
        <source>The program could not be restarted. It goes on as it was.</source>
        <translation>程序无法重新启动，将按原样继续运行。</translation>
    </message>
    <message>
        <source>The program has not registered this combination.</source>
        <translation>程序未注册该组合键。</translation>
    </message>
    <message>
        <source>The program has this combination already.</source>
        <translation>QUORVEL 已注册该组合键。</translation>
    </message>
    <message>
        <source>The program heard it.</source>
        <translation>程序已收到。</translation>
    </message>
    <message>
        <source>The recording could not be begun: %1</source>
        <translation>无法开始记录：%1</translation>
    </message>
    <message>
        <source>The report is on the clipboard. It names no files, programs or users.</source>
        <translation>报告已复制到剪贴板，其中不含文件、程序或用户的名称。</translation>
    </message>
    <message>
        <source>The selected display is unsupported or the signal line is disconnected.</source>
        <translation>所选显示器不受支持，或信号线未连接。</translation>
    </message>
    <message>
        <source>The sharpest motion for shooters.</source>
        <translation>最清晰的动态画面，适合射击游戏。</translation>
    </message>
    <message>
        <source>The sharpest movement, for the fastest games.</source>
        <translation>运动画面最清晰，适合节奏最快的游戏。</translation>
    </message>
    <message>
        <source>The simulated monitor that is shown here</source>
        <translation>此处显示的模拟显示器</translation>
    </message>
    <message>
        <source>The smallest one. Covers least.</source>
        <translation>最小，遮挡最少。</translation>
    </message>
    <message>
        <source>The socket that has a signal. For one computer, or one at a time.</source>
        <translation>自动使用有信号的接口，适合一台电脑或每次一台。</translation>
    </message>
    <message>
        <source>The sound as it comes, for music and all else.</source>
        <translation>保持原声，适合音乐及其他内容。</translation>
    </message>
    <message>
        <source>The sound of the monitor. Audio Mute: Close = sound, Open = silence. Convo = for voices.</source>
        <translation>显示器的声音。“静音”开启时没有声音，“对话”适合人声。</translation>
    </message>
    <message>
        <source>The sound output cannot be listened to. It is tried again every few seconds.</source>
        <translation>无法获取声音输出，每隔几秒会重试。</translation>
    </message>
    <message>
        <source>The standard of the web.</source>
        <translation>网络内容的标准色彩。</translation>
    </message>
    <message>
        <source>The system did not allow &quot;%1&quot; to be changed.</source>
        <translation>系统不允许更改“%1”。</translation>
    </message>
    <message>
        <source>The system did not move the window.</source>
        <translation>系统未移动该窗口。</translation>
    </message>
    <message>
        <source>The system does not tell which screen the window is on.</source>
        <translation>系统未告知窗口位于哪个屏幕。</translation>
    </message>
    <message>
        <source>The system&apos;s audio service is down until the button is released</source>
        <translation>松开按钮前，系统音频服务停止</translation>
    </message>
    <message>
        <source>The text is too long: %1 of its %2 characters fit.</source>
        <translation>文字过长：共&#xa0;%2&#xa0;个字符，只容得下前&#xa0;%1&#xa0;个。</translation>
    </message>
    <message>
        <source>The upgrade program %1 could not be started.</source>
        <translation>无法启动升级程序&#xa0;%1。</translation>
    </message>
    <message>
        <source>The upgrade program is running already.</source>
        <translation>升级程序已在运行。</translation>
    </message>
    <message>
        <source>The usual for web, office, photos and most games.</source>
        <translation>网页、办公、照片和大多数游戏的通用值。</translation>
    </message>
    <message>
        <source>The usual light.</source>
        <translation>通常的灯光。</translation>
    </message>
    <message>
        <source>The usual white for web, photos and films.</source>
        <translation>网页、照片和电影的通用白色。</translation>
    </message>
    <message>
        <source>The version of your monitor&apos;s firmware.</source>
        <translation>您的显示器的固件版本。</translation>
    </message>
    <message>
        <source>The white of printed paper.</source>
        <translation>印刷纸张的白色。</translation>
    </message>
    <message>
        <source>The whole belt comes and goes slowly.</source>
        <translation>整条灯带缓缓明暗。</translation>
    </message>
    <message>
        <source>The whole belt flashes. Hard to bear beside work.</source>
        <translation>整条灯带闪烁，不适合工作时使用。</translation>
    </message>
    <message>
        <source>The window cannot be resized.</source>
        <translation>该窗口不能调整大小。</translation>
    </message>
    <message>
        <source>The window fills the whole screen: end its full screen first.</source>
        <translation>该窗口处于全屏状态：请先退出全屏。</translation>
    </message>
    <message>
        <source>The window is minimised.</source>
        <translation>该窗口已最小化。</translation>
    </message>
    <message>
        <source>The window was not put into a zone, so it has no old place.</source>
        <translation>该窗口未放入过区域，因此没有原位置。</translation>
    </message>
    <message>
        <source>The window&apos;s program does not answer.</source>
        <translation>该窗口的程序没有响应。</translation>
    </message>
    <message>
        <source>The window&apos;s program has more rights than this one and cannot be moved.</source>
        <translation>该窗口的程序权限高于本程序，无法移动。</translation>
    </message>
    <message>
        <source>The zone is too small to be cut.</source>
        <translation>该区域太小，无法再分割。</translation>
    </message>
    <message>
        <source>There are as many layouts as there can be. Delete one first.</source>
        <translation>布局数量已达上限。请先删除一个。</translation>
    </message>
    <message>
        <source>There is no sound output until the button is released</source>
        <translation>松开按钮前，没有声音输出</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>There is no text yet.</source>
        <translation>还没有文字。</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>没有可重做的操作。</translation>
    </message>
    <message>
        <source>There is nothing to set here yet.</source>
        <translation>这里暂时没有可设置的内容。</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>没有可撤销的操作。</translation>
    </message>
    <message>
        <source>Thirds</source>
        <translation>三等分</translation>
    </message>
    <message>
        <source>This function has its row already.</source>
        <translation>该功能已在列表中。</translation>
    </message>
    <message>
        <source>This is the light of the mode &quot;Eye Care&quot;.</source>
        <translation>这是“护眼”模式的灯光。</translation>
    </message>
    <message>
        <source>This layout stays as it is. &quot;New layout&quot; makes one of your own of it.</source>
        <translation>此布局不可更改。“新建布局”会以它为基础创建您自己的布局。</translation>
    </message>
    <message>
        <source>This monitor</source>
        <translation>此显示器</translation>
    </message>
    <message>
        <source>This monitor does not have these functions.</source>
        <translation>此显示器没有这些功能。</translation>
    </message>
    <message>
        <source>This monitor may not have it; else read everything once.</source>
        <translation>此显示器可能没有该功能；否则请全部读取一次。</translation>
    </message>
    <message>
        <source>This slider counts while Color Temperature is Night View C.T.</source>
        <translation>色温选为“夜间色温”时，此滑块才起作用。</translation>
    </message>
    <message>
        <source>This tool says on the desktop that care is due: never over a program that fills the screen.</source>
        <translation>需要护理时，由本工具在桌面上提示；绝不遮挡全屏程序。</translation>
    </message>
    <message>
        <source>Three columns and three rows.</source>
        <translation>三列三行。</translation>
    </message>
    <message>
        <source>Three columns and two rows.</source>
        <translation>三列两行。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Time to rest your eyes for a while.</source>
        <translation>该让眼睛休息一下了。</translation>
    </message>
    <message>
        <source>Time, read or write, code, value and what became of it</source>
        <translation>时间、读取或写入、代码、值及结果</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>定时</translation>
    </message>
    <message>
        <source>To know how long a round has gone on without looking away.</source>
        <translation>视线不离画面，即可了解一局已进行多久。</translation>
    </message>
    <message>
        <source>To see how the reminder looks.</source>
        <translation>用于查看提醒的样子。</translation>
    </message>
    <message>
        <source>To see whether a game runs as smoothly as the monitor could show it.</source>
        <translation>查看游戏是否达到显示器所能呈现的流畅度。</translation>
    </message>
    <message>
        <source>To stop in time.</source>
        <translation>提醒您适时停止。</translation>
    </message>
    <message>
        <source>Today&apos;s automatic changes of this monitor are used up (%1). They go on tomorrow; what you set yourself is not limited.</source>
        <translation>今天对此显示器的自动更改次数已用完（%1&#xa0;次），明天继续。您自己的设置不受限制。</translation>
    </message>
    <message>
        <source>Tool Settings</source>
        <translation>工具设置</translation>
    </message>
    <message>
        <source>Tool Version: </source>
        <translation>工具版本：</translation>
    </message>
    <message>
        <source>Tool language settings</source>
        <translation>工具语言设置</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>顶部</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Topspeed</source>
        <translation>极速</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation>三角形</translation>
    </message>
    <message>
        <source>Trichotomy</source>
        <translation>三分法</translation>
    </message>
    <message>
        <source>Triple Kill</source>
        <translation>三杀</translation>
    </message>
    <message>
        <source>True colours for design work.</source>
        <translation>色彩真实，适合设计工作。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再试一次</translation>
    </message>
    <message>
        <source>Try again; its scene or another setting may forbid it.</source>
        <translation>请重试；当前情景或其他设置可能不允许。</translation>
    </message>
    <message>
        <source>Two columns and two rows.</source>
        <translation>两列两行。</translation>
    </message>
    <message>
        <source>Two tones</source>
        <translation>双音</translation>
    </message>
    <message>
        <source>Type the combination here, then press it on the whole desktop</source>
        <translation>在此输入组合键，然后在整个桌面上按下</translation>
    </message>
    <message>
        <source>Type the text for the matrix.</source>
        <translation>请输入要在矩阵上显示的文字。</translation>
    </message>
    <message>
        <source>Type-B</source>
        <translation>Type-B</translation>
    </message>
    <message>
        <source>Type-C</source>
        <translation>Type-C</translation>
    </message>
    <message>
        <source>USB Power</source>
        <translation>USB 供电</translation>
    </message>
    <message>
        <source>USB Switch</source>
        <translation>USB 切换</translation>
    </message>
    <message>
        <source>Ull-Level1</source>
        <translation>Ull 等级&#xa0;1</translation>
    </message>
    <message>
        <source>Ull-Level2</source>
        <translation>Ull 等级&#xa0;2</translation>
    </message>
    <message>
        <source>Ull-Level3</source>
        <translation>Ull 等级&#xa0;3</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>拔出线缆</translation>
    </message>
    <message>
        <source>Unplugged</source>
        <translation>已拔出</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>升级</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>上传</translation>
    </message>
    <message>
        <source>Uploaded for another form of the matrix.</source>
        <translation>为另一种矩阵形状写入。</translation>
    </message>
    <message>
        <source>Use and care of the last five weeks</source>
        <translation>最近五周的使用与护理</translation>
    </message>
    <message>
        <source>User1</source>
        <translation>用户&#xa0;1</translation>
    </message>
    <message>
        <source>User1 R G B</source>
        <translation>用户&#xa0;1 R G B</translation>
    </message>
    <message>
        <source>User2</source>
        <translation>用户&#xa0;2</translation>
    </message>
    <message>
        <source>User2 R G B</source>
        <translation>用户&#xa0;2 R G B</translation>
    </message>
    <message>
        <source>User3</source>
        <translation>用户&#xa0;3</translation>
    </message>
    <message>
        <source>User3 R G B</source>
        <translation>用户&#xa0;3 R G B</translation>
    </message>
    <message>
        <source>UserB</source>
        <translation>蓝(B)</translation>
    </message>
    <message>
        <source>UserG</source>
        <translation>绿(G)</translation>
    </message>
    <message>
        <source>UserR</source>
        <translation>红(R)</translation>
    </message>
    <message>
        <source>V-Position</source>
        <translation>垂直位置</translation>
    </message>
    <message>
        <source>Value before</source>
        <translation>上一个值</translation>
    </message>
    <message>
        <source>Very bright middle tones: shows what hides in the dark.</source>
        <translation>中间调非常亮：能看清暗处的内容。</translation>
    </message>
    <message>
        <source>Very cool, bluish white, as on old screens.</source>
        <translation>非常冷的偏蓝白色，如同旧式屏幕。</translation>
    </message>
    <message>
        <source>Victory</source>
        <translation>胜利</translation>
    </message>
    <message>
        <source>Visibly darker, for long days with the same windows.</source>
        <translation>明显变暗，适合整天使用相同的窗口。</translation>
    </message>
    <message>
        <source>Vivid colours for animation.</source>
        <translation>色彩鲜艳，适合动画。</translation>
    </message>
    <message>
        <source>Voices come forward, for talks and conferences.</source>
        <translation>突出人声，适合通话和会议。</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Waits long before it dims: good for reading.</source>
        <translation>等待较久才变暗：适合阅读。</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>暖</translation>
    </message>
    <message>
        <source>Warm white for the evening. The slider below says how warm.</source>
        <translation>适合晚间的暖白。下方的滑块决定暖度。</translation>
    </message>
    <message>
        <source>Warm white, as paper under the lamps of a print shop.</source>
        <translation>暖白，如同印刷厂灯光下的纸张。</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>流水</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>波浪</translation>
    </message>
    <message>
        <source>Web(sRGB)</source>
        <translation>网页(sRGB)</translation>
    </message>
    <message>
        <source>What goes wrong</source>
        <translation>故障模拟</translation>
    </message>
    <message>
        <source>What is asked and answered is recorded in %1</source>
        <translation>正在将请求与应答记录到&#xa0;%1</translation>
    </message>
    <message>
        <source>What it looks like</source>
        <translation>效果预览</translation>
    </message>
    <message>
        <source>What most visitors of a page see.</source>
        <translation>大多数网页访客看到的色彩。</translation>
    </message>
    <message>
        <source>What moves looks a little sharper. Good for films.</source>
        <translation>移动物体略微清晰，适合看电影。</translation>
    </message>
    <message>
        <source>What moves looks clearly sharper. Good for sport.</source>
        <translation>移动物体明显清晰，适合看体育节目。</translation>
    </message>
    <message>
        <source>What plays</source>
        <translation>播放内容</translation>
    </message>
    <message>
        <source>Wheel: one step · Tab, arrows · Esc closes</source>
        <translation>滚轮：一格一步 · Tab 和方向键 · Esc 关闭</translation>
    </message>
    <message>
        <source>When the lighting goes out by itself, and whether it stays on in standby.</source>
        <translation>灯光何时自动熄灭，以及待机时是否保持亮灯。</translation>
    </message>
    <message>
        <source>Where others pass by, or a hand easily touches the monitor&apos;s buttons.</source>
        <translation>适合有他人经过，或容易误触显示器按键的场合。</translation>
    </message>
    <message>
        <source>Which cable the monitor&apos;s USB sockets go to, and how fast the picture comes through DP or Type-C.</source>
        <translation>显示器的 USB 接口连到哪条线缆，以及 DP 或 Type-C 传输画面的速度。</translation>
    </message>
    <message>
        <source>Which events of a game the matrix celebrates, how often and how bright.</source>
        <translation>矩阵为哪些游戏事件庆祝，以及间隔和亮度。</translation>
    </message>
    <message>
        <source>Which of the uploaded animations the matrix plays.</source>
        <translation>选择矩阵播放哪些已写入的动画。</translation>
    </message>
    <message>
        <source>Which of your monitors this tool sets.</source>
        <translation>本工具设置您的哪一台显示器。</translation>
    </message>
    <message>
        <source>Which socket the picture comes from. Auto = the one that has a signal.</source>
        <translation>画面来自哪个接口。“自动”选择有信号的接口。</translation>
    </message>
    <message>
        <source>Which way round the light runs, as seen from behind.</source>
        <translation>灯光转动的方向（从背后看）。</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>With the factory parameters</source>
        <translation>出厂参数</translation>
    </message>
    <message>
        <source>With your own parameters</source>
        <translation>自定义参数</translation>
    </message>
    <message>
        <source>Write Animate</source>
        <translation>写入动画</translation>
    </message>
    <message>
        <source>Write Data</source>
        <translation>写入数据</translation>
    </message>
    <message>
        <source>Written today</source>
        <translation>今日写入</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Your own picture. Changes are sent to the monitor as you make them.</source>
        <translation>您的自定义画面，更改会即时发送到显示器。</translation>
    </message>
    <message>
        <source>Zelmar</source>
        <translation>Zelmar</translation>
    </message>
    <message>
        <source>Zelmar Mode</source>
        <translation>Zelmar 模式</translation>
    </message>
    <message>
        <source>Zone %1 of %2</source>
        <translation>区域&#xa0;%1/%2</translation>
    </message>
    <message>
        <source>Zone before</source>
        <translation>上一区域</translation>
    </message>
    <message>
        <source>Zones for %1</source>
        <translation>%1&#xa0;的区域</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>放大倍数</translation>
    </message>
    <message>
        <source>adjusted</source>
        <translation>已调整</translation>
    </message>
    <message>
        <source>all succeeded</source>
        <translation>全部成功</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>deaf</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>固件&#xa0;%1</translation>
    </message>
    <message>
        <source>garbled</source>
        <translation>数据错乱</translation>
    </message>
    <message>
        <source>https://</source>
        <translation>https://</translation>
    </message>
    <message>
        <source>lamp off</source>
        <translation>灯已关</translation>
    </message>
    <message>
        <source>live</source>
        <translation>实时</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>已丢失</translation>
    </message>
    <message>
        <source>made %1</source>
        <translation>%1&#xa0;年制造</translation>
    </message>
    <message>
        <source>made %1, week %2</source>
        <translation>%1&#xa0;年第&#xa0;%2&#xa0;周制造</translation>
    </message>
    <message>
        <source>mode %1</source>
        <translation>模式&#xa0;%1</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>no monitor</source>
        <translation>无显示器</translation>
    </message>
    <message>
        <source>none needed</source>
        <translation>无需重试</translation>
    </message>
    <message>
        <source>not a WAV file of 16-bit or floating-point samples</source>
        <translation>不是&#xa0;16&#xa0;位或浮点采样的 WAV 文件</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>nothing asked yet</source>
        <translation>尚未请求</translation>
    </message>
    <message>
        <source>now</source>
        <translation>现在</translation>
    </message>
    <message>
        <source>off</source>
        <translation>灭</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>on</source>
        <translation>亮</translation>
    </message>
    <message>
        <source>open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>已拒绝</translation>
    </message>
    <message>
        <source>sRGB</source>
        <translation>sRGB</translation>
    </message>
    <message>
        <source>sRGB Mode</source>
        <translation>sRGB 模式</translation>
    </message>
    <message>
        <source>sRGB primaries with gamma 2.2.</source>
        <translation>sRGB 三原色，伽马&#xa0;2.2。</translation>
    </message>
    <message>
        <source>sRGB(2.2)</source>
        <translation>sRGB(2.2)</translation>
    </message>
    <message>
        <source>sRGB(2.2) Mode</source>
        <translation>sRGB(2.2) 模式</translation>
    </message>
    <message>
        <source>serial %1</source>
        <translation>序列号&#xa0;%1</translation>
    </message>
    <message>
        <source>slowest %1</source>
        <translation>最慢&#xa0;%1</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>unexpected</source>
        <translation>意外数据</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>unplugged</source>
        <translation>已拔出</translation>
    </message>
    <message>
        <source>upload</source>
        <translation>已上传内容</translation>
    </message>
    <message>
        <source>x1.5</source>
        <translation>1.5&#xa0;倍</translation>
    </message>
    <message>
        <source>x2</source>
        <translation>2&#xa0;倍</translation>
    </message>
    <message>
        <source>x4</source>
        <translation>4&#xa0;倍</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>File Folder</source>
        <comment>Match Windows Explorer</comment>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <comment>All other platforms</comment>
        <translation>快捷方式</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>增大(&amp;S)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>减小(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QColorDialog</name>
    <message>
        <source>&amp;Add to Custom Colors</source>
        <translation>添加到自定义颜色(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Basic colors</source>
        <translation>基本颜色(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Custom colors</source>
        <translation>自定义颜色(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>绿(&amp;G)：</translation>
    </message>
    <message>
        <source>&amp;HTML:</source>
        <translation>&amp;HTML：</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Color</source>
        <translation>拾取屏幕颜色(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Red:</source>
        <translation>红(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Sat:</source>
        <translation>饱和度(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Val:</source>
        <translation>明度(&amp;V)：</translation>
    </message>
    <message>
        <source>A&amp;lpha channel:</source>
        <translation>透明通道(&amp;L)：</translation>
    </message>
    <message>
        <source>Bl&amp;ue:</source>
        <translation>蓝(&amp;U)：</translation>
    </message>
    <message>
        <source>Cursor at %1, %2
Press ESC to cancel</source>
        <translation>光标位于&#xa0;%1, %2
按 Esc 取消</translation>
    </message>
    <message>
        <source>Hu&amp;e:</source>
        <translation>色相(&amp;E)：</translation>
    </message>
    <message>
        <source>Select Color</source>
        <translation>选择颜色</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
找不到该文件夹。
请检查文件夹名称是否正确。</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
找不到该文件。
请检查文件名是否正确。</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1&#xa0;已存在。
要替换它吗？</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>选择(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新建文件夹(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1”已写保护。
仍要删除它吗？</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>确定要删除“%1”吗？</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>切换到详细信息视图</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>切换到列表视图</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>无法删除文件夹。</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>文件夹：</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>文件名(&amp;N)：</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>文件类型：</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>转到上一级文件夹</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>位置和书签列表</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>位置：</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>上一级文件夹</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>最近的位置</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>显示 </translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>显示隐藏文件(&amp;H)</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>侧栏</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>修改日期</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>此电脑</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Type</source>
        <comment>All other platforms</comment>
        <translation>类型</translation>
    </message>
</context>
<context>
    <name>QKeySequenceEdit</name>
    <message>
        <source>Press shortcut</source>
        <translation>请按快捷键</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左端</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>向下翻页</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>向左翻页</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>向右翻页</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>向上翻页</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右端</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>向下滚动</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>滚动到此处</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>向左滚动</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>向右滚动</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>向上滚动</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>顶部</translation>
    </message>
</context>
<context>
    <name>QSidebar</name>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>QTabBar</name>
    <message>
        <source>Scroll Left</source>
        <translation>向左滚动</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>向右滚动</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
</TS>
