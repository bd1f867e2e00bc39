<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>         Disable</source>
        <translation>         關閉</translation>
    </message>
    <message>
        <source>         Enable</source>
        <translation>         開啟</translation>
    </message>
    <message>
        <source>        Custom</source>
        <translation>        自訂</translation>
    </message>
    <message>
        <source>        Default</source>
        <translation>        預設</translation>
    </message>
    <message>
        <source> already enabled!</source>
        <translation> 已啟用！</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 %, from low to high</source>
        <translation>%1 %，從低到高</translation>
    </message>
    <message>
        <source>%1 cannot be written. Nothing was changed.</source>
        <translation>無法寫入&#xa0;%1，未做任何變更。</translation>
    </message>
    <message>
        <source>%1 cannot be written: what is set here lasts until the program ends.</source>
        <translation>無法寫入&#xa0;%1：此處的設定在應用程式結束前有效。</translation>
    </message>
    <message>
        <source>%1 does not have &quot;%2&quot;.</source>
        <translation>%1&#xa0;沒有「%2」。</translation>
    </message>
    <message>
        <source>%1 frames a second</source>
        <translation>每秒&#xa0;%1&#xa0;畫格</translation>
    </message>
    <message>
        <source>%1 goes to the level before.</source>
        <translation>%1：切換到上一級。</translation>
    </message>
    <message>
        <source>%1 goes to the next level.</source>
        <translation>%1：切換到下一級。</translation>
    </message>
    <message>
        <source>%1 has no OLED panel to care for.</source>
        <translation>%1&#xa0;沒有需要保養的 OLED 面板。</translation>
    </message>
    <message>
        <source>%1 has no game functions.</source>
        <translation>%1&#xa0;沒有遊戲功能。</translation>
    </message>
    <message>
        <source>%1 holds no saved drawing. It stays as it is until you save.</source>
        <translation>%1&#xa0;中沒有已儲存的繪圖。在您儲存之前，該檔案維持不變。</translation>
    </message>
    <message>
        <source>%1 hours of use counted</source>
        <translation>已累計使用&#xa0;%1&#xa0;小時</translation>
    </message>
    <message>
        <source>%1 hours of use since the last care</source>
        <translation>上次保養後已使用&#xa0;%1&#xa0;小時</translation>
    </message>
    <message>
        <source>%1 in all, %2 by itself today</source>
        <translation>共&#xa0;%1&#xa0;次，今日自動&#xa0;%2&#xa0;次</translation>
    </message>
    <message>
        <source>%1 is in the list already.</source>
        <translation>%1&#xa0;已在清單中。</translation>
    </message>
    <message>
        <source>%1 is taken by another program or function and does nothing here.</source>
        <translation>%1&#xa0;已被其他應用程式或功能佔用，在此不起作用。</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;分鐘</translation>
    </message>
    <message>
        <source>%1 moves it to the corner before.</source>
        <translation>%1：移到上一個角落。</translation>
    </message>
    <message>
        <source>%1 moves it to the next corner.</source>
        <translation>%1：移到下一個角落。</translation>
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
        <translation>%2&#xa0;次中遺失&#xa0;%1&#xa0;次</translation>
    </message>
    <message>
        <source>%1 of %2 values were told, in %3 s.</source>
        <translation>已讀取&#xa0;%2&#xa0;個值中的&#xa0;%1&#xa0;個，用時&#xa0;%3&#xa0;秒。</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1&#xa0;像素</translation>
    </message>
    <message>
        <source>%1 requests are recorded in %2</source>
        <translation>已將&#xa0;%1&#xa0;次要求記錄到&#xa0;%2</translation>
    </message>
    <message>
        <source>%1 rows, %2 cells, %3 on</source>
        <translation>%1&#xa0;列，%2&#xa0;格，亮&#xa0;%3&#xa0;格</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;秒</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>剩餘&#xa0;%1&#xa0;秒</translation>
    </message>
    <message>
        <source>%1 steps the colour.</source>
        <translation>%1：切換顏色。</translation>
    </message>
    <message>
        <source>%1 steps the corner.</source>
        <translation>%1：切換角落。</translation>
    </message>
    <message>
        <source>%1 steps the length.</source>
        <translation>%1：切換時長。</translation>
    </message>
    <message>
        <source>%1 steps the shape.</source>
        <translation>%1：切換形狀。</translation>
    </message>
    <message>
        <source>%1 steps the time.</source>
        <translation>%1：切換時間。</translation>
    </message>
    <message>
        <source>%1 succeeded</source>
        <translation>%1&#xa0;次成功</translation>
    </message>
    <message>
        <source>%1 switches it off.</source>
        <translation>%1：關閉。</translation>
    </message>
    <message>
        <source>%1 switches it on.</source>
        <translation>%1：開啟。</translation>
    </message>
    <message>
        <source>%1 was changed to &quot;%2&quot;.</source>
        <translation>「%1」已改為「%2」。</translation>
    </message>
    <message>
        <source>%1 was not taken</source>
        <translation>未能設定「%1」</translation>
    </message>
    <message>
        <source>%1 was not told</source>
        <translation>未能讀取「%1」</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 · protocol faults: %2 · open handles: %3</source>
        <translation>%1 · 通訊協定錯誤：%2 · 開啟的控制代碼：%3</translation>
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
        <translation>%1，第&#xa0;%2&#xa0;個區塊，共&#xa0;%3&#xa0;個</translation>
    </message>
    <message>
        <source>%1, frames: %2</source>
        <translation>%1，畫格數：%2</translation>
    </message>
    <message>
        <source>%1. The window keeps a size of its own.</source>
        <translation>%1。該視窗保持自己的大小。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>1 Hour</source>
        <translation>1&#xa0;小時</translation>
    </message>
    <message>
        <source>1.5 Hour</source>
        <translation>1.5&#xa0;小時</translation>
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
        <translation>10&#xa0;分鐘前</translation>
    </message>
    <message>
        <source>12 Hour</source>
        <translation>12&#xa0;小時</translation>
    </message>
    <message>
        <source>15 min</source>
        <translation>15&#xa0;分鐘</translation>
    </message>
    <message>
        <source>2 Hour</source>
        <translation>2&#xa0;小時</translation>
    </message>
    <message>
        <source>2 Zone Rhythm</source>
        <translation>雙區律動</translation>
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
        <translation>2.5&#xa0;小時</translation>
    </message>
    <message>
        <source>2.6</source>
        <translation>2.6</translation>
    </message>
    <message>
        <source>24 Hour</source>
        <translation>24&#xa0;小時</translation>
    </message>
    <message>
        <source>3 Hour</source>
        <translation>3&#xa0;小時</translation>
    </message>
    <message>
        <source>3.5 Hour</source>
        <translation>3.5&#xa0;小時</translation>
    </message>
    <message>
        <source>30 min</source>
        <translation>30&#xa0;分鐘</translation>
    </message>
    <message>
        <source>30s</source>
        <translation>30&#xa0;秒</translation>
    </message>
    <message>
        <source>4 Hour</source>
        <translation>4&#xa0;小時</translation>
    </message>
    <message>
        <source>40 min</source>
        <translation>40&#xa0;分鐘</translation>
    </message>
    <message>
        <source>5.4G</source>
        <translation>5.4G</translation>
    </message>
    <message>
        <source>50 min</source>
        <translation>50&#xa0;分鐘</translation>
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
        <translation>60&#xa0;分鐘</translation>
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
        <translation>8&#xa0;小時</translation>
    </message>
    <message>
        <source>8.1G</source>
        <translation>8.1G</translation>
    </message>
    <message>
        <source>90 min</source>
        <translation>90&#xa0;分鐘</translation>
    </message>
    <message>
        <source>9300K</source>
        <translation>9300K</translation>
    </message>
    <message>
        <source>&lt;font color=white&gt;Getting Disp Dev Infor...&lt;/font&gt;</source>
        <translation>&lt;font color=white&gt;正在取得顯示裝置資訊...&lt;/font&gt;</translation>
    </message>
    <message>
        <source>A WAV file</source>
        <translation>WAV 檔案</translation>
    </message>
    <message>
        <source>A balanced picture for every day.</source>
        <translation>均衡的畫面，適合日常使用。</translation>
    </message>
    <message>
        <source>A calm white on the wall, for long evenings at the screen.</source>
        <translation>在牆上投射柔和的白光，適合夜間長時間看螢幕。</translation>
    </message>
    <message>
        <source>A circle, for what is in the middle.</source>
        <translation>圓形，適合位於中央的主體。</translation>
    </message>
    <message>
        <source>A colour that can be seen to change is sent, at most one a second.</source>
        <translation>僅在顏色明顯變化時傳送，每秒最多一次。</translation>
    </message>
    <message>
        <source>A colour that few games have themselves.</source>
        <translation>遊戲畫面中少見的顏色。</translation>
    </message>
    <message>
        <source>A crosshair that takes the colour that stands out and opens while the picture moves.</source>
        <translation>準心會採用醒目的顏色，並在畫面移動時張開。</translation>
    </message>
    <message>
        <source>A dark rim: the eye stays in the middle.</source>
        <translation>邊緣較暗，視線停留在中央。</translation>
    </message>
    <message>
        <source>A diagonal and the lines that meet it: for pictures with a slant.</source>
        <translation>一條對角線及與之相交的線，適合有傾斜感的畫面。</translation>
    </message>
    <message>
        <source>A dim picture for dark rooms.</source>
        <translation>較暗的畫面，適合昏暗的房間。</translation>
    </message>
    <message>
        <source>A faint light, for a dark room.</source>
        <translation>微弱的燈光，適合黑暗的房間。</translation>
    </message>
    <message>
        <source>A light runs around the ring.</source>
        <translation>一道光沿燈環流動。</translation>
    </message>
    <message>
        <source>A line of text that the matrix shows, standing or scrolling.</source>
        <translation>一行文字，在矩陣上靜止或捲動顯示。</translation>
    </message>
    <message>
        <source>A little above the middle, as games need it that look over a shoulder.</source>
        <translation>略高於中央，適合越肩視角的遊戲。</translation>
    </message>
    <message>
        <source>A little below the middle, for a view that is tilted up.</source>
        <translation>略低於中央，適合視角偏上的遊戲。</translation>
    </message>
    <message>
        <source>A little cooler than usual.</source>
        <translation>比通常略冷。</translation>
    </message>
    <message>
        <source>A little darker, and a little cheaper.</source>
        <translation>稍暗，略微省電。</translation>
    </message>
    <message>
        <source>A little darker: hardly to be seen, for normal work.</source>
        <translation>略微變暗：幾乎看不出來，適合日常工作。</translation>
    </message>
    <message>
        <source>A little faster, without side effects.</source>
        <translation>略微加快，沒有副作用。</translation>
    </message>
    <message>
        <source>A little warm, as light at noon.</source>
        <translation>略微偏暖，如同正午的陽光。</translation>
    </message>
    <message>
        <source>A mixture of your own: set its red, green and blue with the sliders below.</source>
        <translation>您自己的配色：用下方的滑桿設定紅、綠、藍。</translation>
    </message>
    <message>
        <source>A point of light runs along the belt, like a bead.</source>
        <translation>光點如珠子般沿燈帶滑過。</translation>
    </message>
    <message>
        <source>A protractor around the middle, to measure angles.</source>
        <translation>以螢幕中央為圓心的量角器，用來測量角度。</translation>
    </message>
    <message>
        <source>A quarter of the screen&apos;s width: hides least of the first input.</source>
        <translation>螢幕寬度的四分之一：遮住第一路輸入最少。</translation>
    </message>
    <message>
        <source>A shade at the rim that is hardly noticed.</source>
        <translation>邊緣略暗，幾乎察覺不到。</translation>
    </message>
    <message>
        <source>A sheet as large as you set it above.</source>
        <translation>依上方設定的尺寸顯示紙張。</translation>
    </message>
    <message>
        <source>A sheet of 125 × 176 mm, as of a paperback.</source>
        <translation>一張&#xa0;125 × 176 mm 的紙，與平裝小開本相同。</translation>
    </message>
    <message>
        <source>A sheet of 176 × 250 mm, for books and brochures.</source>
        <translation>一張&#xa0;176 × 250 mm 的紙，適合書籍和小冊子。</translation>
    </message>
    <message>
        <source>A sheet of 210 × 297 mm, upright, in the middle of the screen.</source>
        <translation>一張&#xa0;210 × 297 mm 的紙，直放在螢幕中央。</translation>
    </message>
    <message>
        <source>A soft page for long texts.</source>
        <translation>畫面柔和，適合長時間閱讀。</translation>
    </message>
    <message>
        <source>A sweep</source>
        <translation>掃頻</translation>
    </message>
    <message>
        <source>A third of the screen&apos;s width.</source>
        <translation>螢幕寬度的三分之一。</translation>
    </message>
    <message>
        <source>A tone</source>
        <translation>單音</translation>
    </message>
    <message>
        <source>A very dark rim, for games that play in the middle.</source>
        <translation>邊緣很暗，適合集中在中央的遊戲。</translation>
    </message>
    <message>
        <source>A white behind the screen that spares the eyes. Warm in the evening, cold by day.</source>
        <translation>螢幕後方的護眼白光。晚上宜用暖光，白天宜用冷光。</translation>
    </message>
    <message>
        <source>A wide gamut for photographs.</source>
        <translation>適合攝影作品的廣色域。</translation>
    </message>
    <message>
        <source>A wide gamut under a D50 light.</source>
        <translation>D50&#xa0;光源下的廣色域。</translation>
    </message>
    <message>
        <source>AI Dual Mode</source>
        <translation>AI 雙模式</translation>
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
        <translation>新增畫格</translation>
    </message>
    <message>
        <source>Add Scence</source>
        <translation>新增情境</translation>
    </message>
    <message>
        <source>Add a frame first.</source>
        <translation>請先新增畫格。</translation>
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
        <translation>使用多少小時後需要下一次保養。</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>對齊</translation>
    </message>
    <message>
        <source>Alignment Aid</source>
        <translation>對齊輔助</translation>
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
        <translation>所有顏色同時出現，並沿燈環轉動。</translation>
    </message>
    <message>
        <source>All file (*.*)</source>
        <translation>所有檔案 (*.*)</translation>
    </message>
    <message>
        <source>All lamps come and go slowly. The quietest effect.</source>
        <translation>所有燈光緩緩明暗，是最平靜的燈效。</translation>
    </message>
    <message>
        <source>All lamps follow sound or screen in one colour.</source>
        <translation>所有燈光以同一顏色跟隨聲音或螢幕。</translation>
    </message>
    <message>
        <source>All shortcuts rest while the switch above is off.</source>
        <translation>上方開關關閉時，所有快速鍵均不起作用。</translation>
    </message>
    <message>
        <source>Always the opposite of what lies behind it.</source>
        <translation>始終與背景顏色相反。</translation>
    </message>
    <message>
        <source>Always this socket. The screen stays dark while nothing comes from there.</source>
        <translation>始終使用此連接埠。沒有訊號時螢幕保持黑暗。</translation>
    </message>
    <message>
        <source>American broadcasting primaries.</source>
        <translation>美國廣播標準的三原色。</translation>
    </message>
    <message>
        <source>Angle Ruler</source>
        <translation>量角器</translation>
    </message>
    <message>
        <source>Angle close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Animate</source>
        <translation>動畫</translation>
    </message>
    <message>
        <source>Animate Mode</source>
        <translation>動畫模式</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>動畫</translation>
    </message>
    <message>
        <source>Another device becomes the default one</source>
        <translation>另一個裝置成為預設裝置</translation>
    </message>
    <message>
        <source>Another program registers the combination first</source>
        <translation>由另一個應用程式先註冊該組合鍵</translation>
    </message>
    <message>
        <source>Another program…</source>
        <translation>其他應用程式…</translation>
    </message>
    <message>
        <source>Answer times, last ten minutes</source>
        <translation>最近&#xa0;10&#xa0;分鐘的回應時間</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>回應率</translation>
    </message>
    <message>
        <source>Application is already running</source>
        <translation>應用程式已在執行中</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>Arrange the window</source>
        <translation>排列視窗</translation>
    </message>
    <message>
        <source>Arrangement of the windows</source>
        <translation>視窗的排列</translation>
    </message>
    <message>
        <source>Art Design</source>
        <translation>藝術設計</translation>
    </message>
    <message>
        <source>Art Design Mode</source>
        <translation>藝術設計模式</translation>
    </message>
    <message>
        <source>As Auto, with dark parts that stay readable.</source>
        <translation>與「自動」相同，且暗部仍清晰可見。</translation>
    </message>
    <message>
        <source>As Auto, with deep shadows as a film wants them.</source>
        <translation>與「自動」相同，並保留電影般深沉的陰影。</translation>
    </message>
    <message>
        <source>As bright as you set it.</source>
        <translation>保持您設定的亮度。</translation>
    </message>
    <message>
        <source>As fast as it goes. Bright rims may follow what moves.</source>
        <translation>最快。移動物體後方可能出現亮邊。</translation>
    </message>
    <message>
        <source>As saved: %1 cells a frame, not 1050.</source>
        <translation>同儲存的&#xa0;%1&#xa0;格，非每畫格&#xa0;1050&#xa0;格。</translation>
    </message>
    <message>
        <source>Asked again and told; nothing to do.</source>
        <translation>重新讀取成功，無需處理。</translation>
    </message>
    <message>
        <source>Asked again; nothing to do.</source>
        <translation>已重新讀取，無需處理。</translation>
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
        <translation>音訊模式</translation>
    </message>
    <message>
        <source>Audio Mute</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>Audio Settings</source>
        <translation>音訊設定</translation>
    </message>
    <message>
        <source>Audio Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Auto-L1</source>
        <translation>自動 L1</translation>
    </message>
    <message>
        <source>Auto-L2</source>
        <translation>自動 L2</translation>
    </message>
    <message>
        <source>Automatic changes</source>
        <translation>每天自動變更</translation>
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
        <translation>正在背景執行</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>長條</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>基本設定</translation>
    </message>
    <message>
        <source>Black Level</source>
        <translation>黑階</translation>
    </message>
    <message>
        <source>Black and white, like paper.</source>
        <translation>黑白顯示，如同紙張。</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>藍色</translation>
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
        <translation>邊界</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>呼吸</translation>
    </message>
    <message>
        <source>Bright middle tones, for a bright room.</source>
        <translation>中間調較亮，適合明亮的房間。</translation>
    </message>
    <message>
        <source>Bright on nearly everything but grass.</source>
        <translation>除草地外，幾乎在任何背景上都明亮。</translation>
    </message>
    <message>
        <source>Bright parts shine when the signal has the range for it.</source>
        <translation>訊號支援時，亮部更加明亮。</translation>
    </message>
    <message>
        <source>Brightens dark scenes. Close = off, Level1 and Level2 = always, Auto-L1 and Auto-L2 = when needed.</source>
        <translation>提亮昏暗的場景。「等級&#xa0;1」和「等級&#xa0;2」持續生效，「自動 L1」和「自動 L2」隨畫面調整。</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Bring to the front</source>
        <translation>切換到前景</translation>
    </message>
    <message>
        <source>Brings the monitor&apos;s firmware up to date. Leave the monitor switched on until it has finished.</source>
        <translation>啟動顯示器韌體升級應用程式。升級完成前請勿關閉顯示器。</translation>
    </message>
    <message>
        <source>Buffer error</source>
        <translation>緩衝區錯誤</translation>
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
        <translation>對比度增強</translation>
    </message>
    <message>
        <source>CSV file (*.csv);</source>
        <translation>CSV 檔案 (*.csv);</translation>
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
        <translation>已取消，未做任何變更。</translation>
    </message>
    <message>
        <source>Care Content</source>
        <translation>保養內容</translation>
    </message>
    <message>
        <source>Care Due</source>
        <translation>需要保養</translation>
    </message>
    <message>
        <source>Care Interval</source>
        <translation>保養間隔</translation>
    </message>
    <message>
        <source>Care Mode</source>
        <translation>保養模式</translation>
    </message>
    <message>
        <source>Care Plan</source>
        <translation>保養計畫</translation>
    </message>
    <message>
        <source>Care Reminder</source>
        <translation>保養提醒</translation>
    </message>
    <message>
        <source>Care Running</source>
        <translation>正在保養</translation>
    </message>
    <message>
        <source>Care begins only when you start it.</source>
        <translation>只有您啟動時才會保養。</translation>
    </message>
    <message>
        <source>Care evens out how the pixels have aged, so that no picture stays visible. It takes about 6 minutes.</source>
        <translation>保養使像素的老化趨於一致，不留殘影。約需&#xa0;6&#xa0;分鐘。</translation>
    </message>
    <message>
        <source>Care is due.</source>
        <translation>需要保養了。</translation>
    </message>
    <message>
        <source>Care is due. The picture goes black for about 6 minutes.</source>
        <translation>需要保養了。畫面會變黑約&#xa0;6&#xa0;分鐘。</translation>
    </message>
    <message>
        <source>Care is due: the monitor begins when it goes to standby.</source>
        <translation>需要保養了：顯示器進入待機時會自動開始。</translation>
    </message>
    <message>
        <source>Care is running. Leave the monitor on until the picture is back.</source>
        <translation>正在保養。畫面恢復前請勿關閉顯示器。</translation>
    </message>
    <message>
        <source>Care takes about 6 minutes, in which the picture is black. It evens out how the pixels have aged; nothing that is open is lost.</source>
        <translation>保養約需&#xa0;6&#xa0;分鐘，其間畫面為黑色。它使像素的老化趨於一致；已開啟的內容不會遺失。</translation>
    </message>
    <message>
        <source>Caret</source>
        <translation>箭頭</translation>
    </message>
    <message>
        <source>Cell Size</source>
        <translation>格子大小</translation>
    </message>
    <message>
        <source>Changes take effect when you press &quot;%1&quot;.</source>
        <translation>按下「%1」後變更生效。</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>聲道</translation>
    </message>
    <message>
        <source>Choose a mode on the left. On now: %1</source>
        <translation>請在左側選擇模式。目前：%1</translation>
    </message>
    <message>
        <source>Choose an entry on the left.</source>
        <translation>請在左側選擇一項。</translation>
    </message>
    <message>
        <source>Choose the controls</source>
        <translation>選擇控制項</translation>
    </message>
    <message>
        <source>Choose the scene again, or read everything once.</source>
        <translation>請重新選擇情境，或全部讀取一次。</translation>
    </message>
    <message>
        <source>Chosen, and switched off now.</source>
        <translation>已選擇，目前已關閉。</translation>
    </message>
    <message>
        <source>Cinema colours at a D65 white.</source>
        <translation>D65&#xa0;白點下的電影院色彩。</translation>
    </message>
    <message>
        <source>Clean Frame</source>
        <translation>清空畫格</translation>
    </message>
    <message>
        <source>Clearly darker: for texts, not for pictures.</source>
        <translation>明顯變暗，適合文字，不適合圖片。</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>時鐘</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>順時針</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Close = dark, Normal = one colour, Effect = it moves, Rhythm = follows sound or screen, Eye Care = calm white.</source>
        <translation>關閉&#xa0;= 熄燈，一般&#xa0;= 單色，燈效&#xa0;= 動態，律動&#xa0;= 跟隨聲音或螢幕，護眼&#xa0;= 柔和白光。</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>關閉視窗</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>冷</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>顏色</translation>
    </message>
    <message>
        <source>Color Enchance</source>
        <translation>色彩增強</translation>
    </message>
    <message>
        <source>Color Enhance</source>
        <translation>色彩增強</translation>
    </message>
    <message>
        <source>Color Saturation</source>
        <translation>色彩飽和度</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>色彩空間</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>色溫</translation>
    </message>
    <message>
        <source>Colour and brightness follow what this computer plays. For music.</source>
        <translation>顏色和亮度隨電腦播放的聲音變化，適合音樂。</translation>
    </message>
    <message>
        <source>Combination to press</source>
        <translation>要按下的組合鍵</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>構圖</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>對比度</translation>
    </message>
    <message>
        <source>Convo</source>
        <translation>對話</translation>
    </message>
    <message>
        <source>Cool white: text looks crisp.</source>
        <translation>冷白：文字顯得清晰。</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>複製報告</translation>
    </message>
    <message>
        <source>Counterclockwise</source>
        <translation>逆時針</translation>
    </message>
    <message>
        <source>Counts down from this. Take as long as you mean to play.</source>
        <translation>從此時間開始倒數計時。請依打算遊玩的時間長短選擇。</translation>
    </message>
    <message>
        <source>Counts down in a corner, so that you notice how long you have played.</source>
        <translation>在螢幕一角倒數計時，提醒您已經玩了多久。</translation>
    </message>
    <message>
        <source>Counts up in a corner, to the time that you choose, and begins again.</source>
        <translation>在螢幕一角計時，到所選時間後重新開始。</translation>
    </message>
    <message>
        <source>Counts up to this and begins again. Take the length of a round.</source>
        <translation>計時到此時間後重新開始。請依一局的時間長短選擇。</translation>
    </message>
    <message>
        <source>Covers least. For a screen that is near.</source>
        <translation>遮擋最少，適合近距離的螢幕。</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>十字</translation>
    </message>
    <message>
        <source>Crosshair Color</source>
        <translation>準心顏色</translation>
    </message>
    <message>
        <source>Crosshair Place</source>
        <translation>準心位置</translation>
    </message>
    <message>
        <source>Crosshair Shape</source>
        <translation>準心形狀</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自訂</translation>
    </message>
    <message>
        <source>Custom Color</source>
        <translation>自訂顏色</translation>
    </message>
    <message>
        <source>Custom Mode</source>
        <translation>自訂模式</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>自訂尺寸</translation>
    </message>
    <message>
        <source>Cut across</source>
        <translation>水平切分</translation>
    </message>
    <message>
        <source>Cut upright</source>
        <translation>垂直切分</translation>
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
        <translation>程式設計(深色)</translation>
    </message>
    <message>
        <source>Dark and rich in contrast, as films look in a cinema.</source>
        <translation>偏暗且對比強烈，如同電影院效果。</translation>
    </message>
    <message>
        <source>Dark parts become a little darker.</source>
        <translation>暗部略微變暗。</translation>
    </message>
    <message>
        <source>Dark places are always a little brighter.</source>
        <translation>暗處始終略微提亮。</translation>
    </message>
    <message>
        <source>Dark places are always much brighter.</source>
        <translation>暗處始終大幅提亮。</translation>
    </message>
    <message>
        <source>Dark places stay dark.</source>
        <translation>暗處保持原樣。</translation>
    </message>
    <message>
        <source>Dark scenes become a little brighter, bright ones stay as they are.</source>
        <translation>暗場景略微提亮，亮場景保持不變。</translation>
    </message>
    <message>
        <source>Dark scenes become much brighter, bright ones stay as they are.</source>
        <translation>暗場景大幅提亮，亮場景保持不變。</translation>
    </message>
    <message>
        <source>Dark with the Screen</source>
        <translation>隨螢幕熄燈</translation>
    </message>
    <message>
        <source>Darkens the rim of the screen, so that the middle draws the eye.</source>
        <translation>調暗螢幕邊緣，讓視線集中在中央。</translation>
    </message>
    <message>
        <source>Darker black, for films and games.</source>
        <translation>黑色更深，適合電影和遊戲。</translation>
    </message>
    <message>
        <source>Deep and high tones are stronger, as in a cinema.</source>
        <translation>低音和高音更強，如同電影院。</translation>
    </message>
    <message>
        <source>Deep contrast for films.</source>
        <translation>深邃對比，適合觀賞電影。</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>預設</translation>
    </message>
    <message>
        <source>Defeat</source>
        <translation>落敗</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Delete Frame</source>
        <translation>刪除畫格</translation>
    </message>
    <message>
        <source>Delete layout</source>
        <translation>刪除版面</translation>
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
        <translation>偵測速度</translation>
    </message>
    <message>
        <source>Dims after a few minutes without a change.</source>
        <translation>畫面幾分鐘沒有變化後變暗。</translation>
    </message>
    <message>
        <source>Dims gently, so that changes are hardly noticed.</source>
        <translation>柔和調光，幾乎察覺不到變化。</translation>
    </message>
    <message>
        <source>Dims signs that stand still, such as a station&apos;s logo. Close = off; Low to High are stronger in turn.</source>
        <translation>使靜止的圖示變暗，例如電視台的台標。關閉&#xa0;= 不啟用；從低到高依次增強。</translation>
    </message>
    <message>
        <source>Dims soon: spares the panel most.</source>
        <translation>很快變暗：最能保護面板。</translation>
    </message>
    <message>
        <source>Dims the border between bright and dark, as beside black bars. Close = off; Low to High are stronger in turn.</source>
        <translation>使明暗交界處變暗，例如黑邊旁。關閉&#xa0;= 不啟用；從低到高依次增強。</translation>
    </message>
    <message>
        <source>Dims the light behind dark parts, so that black is deeper. Close = off; the others are stronger in turn.</source>
        <translation>調暗畫面暗部的背光，讓黑色更深。各選項的效果依序增強。</translation>
    </message>
    <message>
        <source>Dims the screen while nothing moves. Detection Rate is how soon it notices that.</source>
        <translation>畫面靜止時使螢幕變暗。偵測速度決定多快察覺。</translation>
    </message>
    <message>
        <source>Dims the taskbar, which always stands in one place. Close = off; Low to High are stronger in turn.</source>
        <translation>使始終停在一處的工作列變暗。關閉&#xa0;= 不啟用；從低到高依次增強。</translation>
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
        <translation>顯示器版本</translation>
    </message>
    <message>
        <source>Do not save</source>
        <translation>不儲存</translation>
    </message>
    <message>
        <source>Dot</source>
        <translation>圓點</translation>
    </message>
    <message>
        <source>Dotted cross</source>
        <translation>帶點十字</translation>
    </message>
    <message>
        <source>Double Kill</source>
        <translation>雙殺</translation>
    </message>
    <message>
        <source>Draw a line through a zone to cut it, or drag an edge. With the keyboard: the arrows choose a zone, Ctrl and an arrow moves its edge.</source>
        <translation>在區域中畫一條線即可切開，也可以拖曳邊線。使用鍵盤時：方向鍵選擇區域，Ctrl 加方向鍵移動其邊線。</translation>
    </message>
    <message>
        <source>Draw frames cell by cell; the matrix plays them in a loop.</source>
        <translation>逐格繪製各畫格，矩陣會循環播放。</translation>
    </message>
    <message>
        <source>Drawn by the monitor itself, so it works in every game and is no program that a game could see.</source>
        <translation>由顯示器自身繪製，適用於所有遊戲，遊戲不會偵測到任何應用程式。</translation>
    </message>
    <message>
        <source>Draws guide lines for composing a picture. Close = none, Trichotomy = into thirds, Round = a circle.</source>
        <translation>顯示構圖參考線。「三分法」將畫面分成三等份。</translation>
    </message>
    <message>
        <source>Draws lines that divide the screen. Close = none; Alignment_4, Alignment_6 and Alignment_9 = into 4, 6 or 9 parts.</source>
        <translation>在螢幕上顯示分格線，將畫面分成&#xa0;4、6&#xa0;或&#xa0;9&#xa0;格。</translation>
    </message>
    <message>
        <source>Draws the outline of a sheet on the screen. Close = none, Custom Size = as large as you set it.</source>
        <translation>在螢幕上顯示紙張的輪廓。「自訂尺寸」依您設定的大小顯示。</translation>
    </message>
    <message>
        <source>Drop a chunk</source>
        <translation>遺失區塊</translation>
    </message>
    <message>
        <source>Duplicate Frame</source>
        <translation>複製畫格</translation>
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
        <translation>動態準心</translation>
    </message>
    <message>
        <source>Dynamic Crosshair Color</source>
        <translation>動態準心顏色</translation>
    </message>
    <message>
        <source>Dynamic Crosshair Size</source>
        <translation>動態準心大小</translation>
    </message>
    <message>
        <source>Dynamic OD</source>
        <translation>動態 OD</translation>
    </message>
    <message>
        <source>E-Book</source>
        <translation>電子書</translation>
    </message>
    <message>
        <source>E-Book Mode</source>
        <translation>電子書模式</translation>
    </message>
    <message>
        <source>E-Book Mode is black and white: colours need another scene mode.</source>
        <translation>電子書模式為黑白顯示：要調整色彩，請換用其他情境模式。</translation>
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
        <translation>容易看到，但會遮住目標。</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>燈效</translation>
    </message>
    <message>
        <source>Emberline</source>
        <translation>Emberline</translation>
    </message>
    <message>
        <source>Enlarges the middle of the screen, so that what is far away is seen.</source>
        <translation>放大螢幕中央，看清遠處的目標。</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>擦除</translation>
    </message>
    <message>
        <source>European broadcasting primaries.</source>
        <translation>歐洲廣播標準的三原色。</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Every packet holds 7001 frames until the button is released</source>
        <translation>放開按鈕前，每個封包都含&#xa0;7001&#xa0;個音框</translation>
    </message>
    <message>
        <source>Every picture is shown with the usual range.</source>
        <translation>所有畫面都以一般動態範圍顯示。</translation>
    </message>
    <message>
        <source>Every request takes 400 ms longer</source>
        <translation>每個要求多花&#xa0;400&#xa0;毫秒</translation>
    </message>
    <message>
        <source>Everything that the panel can show.</source>
        <translation>面板所能顯示的全部色彩。</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Export Animate</source>
        <translation>匯出動畫</translation>
    </message>
    <message>
        <source>Extensible, floating point</source>
        <translation>延伸格式，浮點</translation>
    </message>
    <message>
        <source>Extensible, integer</source>
        <translation>延伸格式，整數</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <translation>護眼</translation>
    </message>
    <message>
        <source>Eye Care Mode</source>
        <translation>護眼模式</translation>
    </message>
    <message>
        <source>Eyeshield Remind</source>
        <translation>護眼提醒</translation>
    </message>
    <message>
        <source>Falling Peaks</source>
        <translation>峰值回落</translation>
    </message>
    <message>
        <source>Far above the middle, for games that aim high on the screen.</source>
        <translation>遠高於中央，適合瞄準點偏高的遊戲。</translation>
    </message>
    <message>
        <source>Far below the middle, for games that aim low on the screen.</source>
        <translation>遠低於中央，適合瞄準點偏低的遊戲。</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>快</translation>
    </message>
    <message>
        <source>Fast enough for every resolution and refresh rate.</source>
        <translation>足以支援所有解析度和更新率。</translation>
    </message>
    <message>
        <source>Fast, for games. Light edges may be seen on some grey tones.</source>
        <translation>快速，適合遊戲。部分灰階可能出現亮邊。</translation>
    </message>
    <message>
        <source>Faster: less smear behind what moves.</source>
        <translation>更快：移動物體的殘影更少。</translation>
    </message>
    <message>
        <source>File is null.</source>
        <translation>檔案為空。</translation>
    </message>
    <message>
        <source>Fine lines and clear edges for drawings.</source>
        <translation>線條精細、邊緣清晰，適合製圖。</translation>
    </message>
    <message>
        <source>First control</source>
        <translation>第一個控制項</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>閃爍</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>流動</translation>
    </message>
    <message>
        <source>Focus Dimming</source>
        <translation>聚焦調暗</translation>
    </message>
    <message>
        <source>Focus Dimming Level</source>
        <translation>聚焦調暗強度</translation>
    </message>
    <message>
        <source>Follow Desc</source>
        <translation>為應用程式指定情境模式：該應用程式位於前景時，顯示器會自動切換，離開後恢復基礎情境。</translation>
    </message>
    <message>
        <source>Follow Setting</source>
        <translation>情境跟隨設定</translation>
    </message>
    <message>
        <source>For a laptop whose picture comes by its USB cable. Off if that socket only carries data and power.</source>
        <translation>適合透過 USB 纜線傳輸畫面的筆記型電腦。若該連接埠只傳輸資料和供電，請關閉。</translation>
    </message>
    <message>
        <source>For a player or a console that is to wake the monitor. Quick Boot cannot be on at the same time.</source>
        <translation>讓播放器或遊戲機喚醒顯示器。不能與「快速啟動」同時開啟。</translation>
    </message>
    <message>
        <source>For a screen that is left alone for long. Films and games move and are not dimmed.</source>
        <translation>適合長時間無人操作的螢幕。電影和遊戲畫面在動，不會變暗。</translation>
    </message>
    <message>
        <source>For a screen that is used for pictures and texts in turn. Leave it off while you judge colours.</source>
        <translation>適合交替檢視圖片和文字的螢幕。需要判斷顏色時請關閉。</translation>
    </message>
    <message>
        <source>For charging a telephone at the monitor, and for keyboard and mouse. Off saves power in standby.</source>
        <translation>可在顯示器上為手機充電，並使用鍵盤和滑鼠。關閉可在待機時省電。</translation>
    </message>
    <message>
        <source>For code on a dark ground.</source>
        <translation>適合深色背景的程式碼。</translation>
    </message>
    <message>
        <source>For code on a light ground.</source>
        <translation>適合淺色背景的程式碼。</translation>
    </message>
    <message>
        <source>For computers, which send 0 to 255.</source>
        <translation>適合傳送&#xa0;0&#xa0;至&#xa0;255&#xa0;的電腦。</translation>
    </message>
    <message>
        <source>For fast games in which a crosshair that stands still gets lost.</source>
        <translation>適合靜止準心容易看丟的快節奏遊戲。</translation>
    </message>
    <message>
        <source>For finding out why a monitor does not answer as it should.</source>
        <translation>協助查明顯示器為何沒有正常回應。</translation>
    </message>
    <message>
        <source>For games in which every moment counts. For films and work leave it off.</source>
        <translation>適合分秒必爭的遊戲。看電影或工作時請關閉。</translation>
    </message>
    <message>
        <source>For games in which the middle decides. Maps and figures at the rim get darker too.</source>
        <translation>適合勝負取決於畫面中央的遊戲。邊緣的地圖和數字也會變暗。</translation>
    </message>
    <message>
        <source>For games that have no crosshair of their own, or one that is hard to see.</source>
        <translation>適合沒有準心或準心不清楚的遊戲。</translation>
    </message>
    <message>
        <source>For games with far targets. It covers a part of the picture.</source>
        <translation>適合目標較遠的遊戲。會遮住一部分畫面。</translation>
    </message>
    <message>
        <source>For games, whose pictures come now faster, now slower. The computer must have it switched on as well.</source>
        <translation>適合畫面時快時慢的遊戲。電腦上也須開啟此功能。</translation>
    </message>
    <message>
        <source>For most games.</source>
        <translation>適合大多數遊戲。</translation>
    </message>
    <message>
        <source>For placing windows, pictures or a drawing evenly around the middle.</source>
        <translation>便於將視窗、圖片或圖形均勻地排在中央四周。</translation>
    </message>
    <message>
        <source>For players and consoles that send 16 to 235. With a computer black looks grey.</source>
        <translation>適合傳送&#xa0;16&#xa0;至&#xa0;235&#xa0;的播放器和遊戲機。用於電腦時黑色會發灰。</translation>
    </message>
    <message>
        <source>For scenes that are near.</source>
        <translation>適合近處的場景。</translation>
    </message>
    <message>
        <source>For targets that move: what is in the ring is near enough.</source>
        <translation>適合移動的目標：在圓環內即可。</translation>
    </message>
    <message>
        <source>For wide landscapes; coarse.</source>
        <translation>適合開闊的場景，畫面較粗糙。</translation>
    </message>
    <message>
        <source>Found at once, also from far away.</source>
        <translation>從遠處也能立刻看到。</translation>
    </message>
    <message>
        <source>Four bytes of the next scene-mode block get lost</source>
        <translation>下一個情境模式資料區塊將遺失四個位元組</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>框線</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>第&#xa0;%1&#xa0;個畫格</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>畫格</translation>
    </message>
    <message>
        <source>Frames/s</source>
        <translation>畫格/秒</translation>
    </message>
    <message>
        <source>Frames: %1</source>
        <translation>畫格數：%1</translation>
    </message>
    <message>
        <source>Frames: %1, of which the accessory takes %2</source>
        <translation>畫格數：%1，配件最多接收&#xa0;%2&#xa0;個</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>頻率</translation>
    </message>
    <message>
        <source>From now on another program has it.</source>
        <translation>從現在起由另一個應用程式佔用。</translation>
    </message>
    <message>
        <source>Front Brightness</source>
        <translation>前燈亮度</translation>
    </message>
    <message>
        <source>Front Color</source>
        <translation>前燈顏色</translation>
    </message>
    <message>
        <source>Front and Rear</source>
        <translation>前燈與後燈</translation>
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
        <translation>伽瑪</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>遊戲</translation>
    </message>
    <message>
        <source>Game Aid</source>
        <translation>遊戲輔助</translation>
    </message>
    <message>
        <source>Game Crosshair</source>
        <translation>遊戲準心</translation>
    </message>
    <message>
        <source>Game Rush</source>
        <translation>遊戲衝刺</translation>
    </message>
    <message>
        <source>Game Time</source>
        <translation>遊戲計時</translation>
    </message>
    <message>
        <source>Game Time Length</source>
        <translation>遊戲計時時長</translation>
    </message>
    <message>
        <source>Game Time Place</source>
        <translation>遊戲計時位置</translation>
    </message>
    <message>
        <source>Game VS</source>
        <translation>遊戲對戰</translation>
    </message>
    <message>
        <source>Game report</source>
        <translation>遊戲報告</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>伽瑪</translation>
    </message>
    <message>
        <source>General Settings</source>
        <translation>一般設定</translation>
    </message>
    <message>
        <source>Give the zone away</source>
        <translation>併入相鄰區域</translation>
    </message>
    <message>
        <source>Global Rhythm</source>
        <translation>全域律動</translation>
    </message>
    <message>
        <source>Go deaf</source>
        <translation>不再回應</translation>
    </message>
    <message>
        <source>Golden Section</source>
        <translation>黃金分割</translation>
    </message>
    <message>
        <source>Gravity Sensor</source>
        <translation>重力感應</translation>
    </message>
    <message>
        <source>Gray Response</source>
        <translation>灰階反應</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>綠色</translation>
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
        <translation>HDTV 視訊</translation>
    </message>
    <message>
        <source>Halo Control</source>
        <translation>光暈控制</translation>
    </message>
    <message>
        <source>Halves</source>
        <translation>二等分</translation>
    </message>
    <message>
        <source>Hanging</source>
        <translation>倒掛</translation>
    </message>
    <message>
        <source>HawkEye Brightness</source>
        <translation>鷹眼亮度</translation>
    </message>
    <message>
        <source>HawkEye Contrast</source>
        <translation>鷹眼對比度</translation>
    </message>
    <message>
        <source>HawkEye Sharpness</source>
        <translation>鷹眼銳利度</translation>
    </message>
    <message>
        <source>HawkEye Vision</source>
        <translation>鷹眼視野</translation>
    </message>
    <message>
        <source>HawkEye Zoom</source>
        <translation>鷹眼放大倍率</translation>
    </message>
    <message>
        <source>Headshot</source>
        <translation>爆頭</translation>
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
        <translation>高畫質電視。</translation>
    </message>
    <message>
        <source>High-definition video work.</source>
        <translation>高畫質視訊製作。</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>高亮</translation>
    </message>
    <message>
        <source>Hold Ctrl or Alt and press a letter or a digit.</source>
        <translation>請按住 Ctrl 或 Alt 再按字母或數字。</translation>
    </message>
    <message>
        <source>Hotkey conflict</source>
        <translation>快速鍵衝突</translation>
    </message>
    <message>
        <source>How and where the monitor shows its menu, and how soon it sleeps without a signal (No Signal Timer).</source>
        <translation>顯示器本身選單的顯示方式和位置。「無訊號計時器」設定無訊號多久後休眠。</translation>
    </message>
    <message>
        <source>How bright the enlarged part is. Level3 = as the rest; higher ones show what is in the shade.</source>
        <translation>放大部分的亮度。「等級&#xa0;3」與其餘畫面相同，等級越高越能看清陰影中的細節。</translation>
    </message>
    <message>
        <source>How bright the lamp shines that tells that the monitor is on. Close = dark, Level3 = brightest.</source>
        <translation>顯示器開啟時指示燈的亮度。「等級&#xa0;3」最亮。</translation>
    </message>
    <message>
        <source>How bright the middle tones are. The higher the value, the darker.</source>
        <translation>中間色調的亮度。數值越大，畫面越暗。</translation>
    </message>
    <message>
        <source>How clear its edges are. Level3 = as they come; lower ones hide coarse dots, higher ones show outlines.</source>
        <translation>放大部分邊緣的清晰度。「等級&#xa0;3」保持原樣，較低的等級淡化顆粒，較高的等級突顯輪廓。</translation>
    </message>
    <message>
        <source>How far light and dark are apart in it. Level3 = as the rest; higher ones help in fog and dust.</source>
        <translation>放大部分的明暗差別。「等級&#xa0;3」與其餘畫面相同，等級越高越適合霧和沙塵。</translation>
    </message>
    <message>
        <source>How long the monitor waits without a signal before it sleeps.</source>
        <translation>無訊號時，顯示器等待多久後休眠。</translation>
    </message>
    <message>
        <source>How often a day the tool may change the monitor without your doing.</source>
        <translation>每天最多允許工具自動變更顯示器多少次。</translation>
    </message>
    <message>
        <source>How pictures with a high dynamic range are shown. Close = off, Auto = when the signal has it.</source>
        <translation>高動態範圍畫面的顯示方式。「自動」在訊號為 HDR 時啟用。</translation>
    </message>
    <message>
        <source>How the LED matrix behind the monitor shines. Matrix Lamp and Clock: Close = off, Open = on.</source>
        <translation>顯示器背後的 LED 矩陣的顯示方式。</translation>
    </message>
    <message>
        <source>How the lamps move in the mode &quot;Effect&quot;. The picture plays it as it will look.</source>
        <translation>「燈效」模式下燈光的變化方式。圖中會播放實際效果。</translation>
    </message>
    <message>
        <source>How the link to the monitor has been since the program started.</source>
        <translation>本工具啟動以來與顯示器的連線狀況。</translation>
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
        <translation>印刷品的最終效果。</translation>
    </message>
    <message>
        <source>How this tool starts, which language it speaks and what it may do by itself.</source>
        <translation>本工具的啟動方式、語言，以及可以自動執行的操作。</translation>
    </message>
    <message>
        <source>How warm white looks. 5000K = warmest, 9300K = coldest, User1 to User3 = your own mixtures.</source>
        <translation>白色的冷暖。5000K 最暖，9300K 最冷，使用者&#xa0;1&#xa0;至使用者&#xa0;3&#xa0;由您自行調配。</translation>
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
        <translation>超大封包</translation>
    </message>
    <message>
        <source>I/O Settings</source>
        <translation>I/O 設定</translation>
    </message>
    <message>
        <source>ISP</source>
        <translation>ISP</translation>
    </message>
    <message>
        <source>If you switch the monitor on several times a day. CEC cannot be on at the same time.</source>
        <translation>適合每天多次開啟顯示器。不能與 CEC 同時開啟。</translation>
    </message>
    <message>
        <source>If you turn the screen now and then: the monitor&apos;s menu turns with it.</source>
        <translation>適合偶爾旋轉螢幕：顯示器選單會隨之旋轉。</translation>
    </message>
    <message>
        <source>Image sticking protection: clears what a picture leaves behind as soon as it is gone.</source>
        <translation>殘影防護：畫面消失後立即清除其殘留。</translation>
    </message>
    <message>
        <source>Import Aligned</source>
        <translation>對齊匯入</translation>
    </message>
    <message>
        <source>Import Animate</source>
        <translation>匯入動畫</translation>
    </message>
    <message>
        <source>In the very middle, where most games aim.</source>
        <translation>正中央，大多數遊戲的瞄準點。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>Input Signal</source>
        <translation>輸入訊號</translation>
    </message>
    <message>
        <source>Inset Place</source>
        <translation>子視窗位置</translation>
    </message>
    <message>
        <source>Inset Size</source>
        <translation>子視窗大小</translation>
    </message>
    <message>
        <source>Is it on, its cable plugged in, and DDC/CI on in its menu?</source>
        <translation>請檢查顯示器是否開機、纜線是否接好、選單中 DDC/CI 是否開啟。</translation>
    </message>
    <message>
        <source>It answers again; nothing to do.</source>
        <translation>顯示器已恢復回應，無需處理。</translation>
    </message>
    <message>
        <source>It is a link, which is not followed.</source>
        <translation>它是連結，應用程式不會透過連結寫入。</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>它不是檔案。</translation>
    </message>
    <message>
        <source>It may not be changed.</source>
        <translation>不允許修改。</translation>
    </message>
    <message>
        <source>Keeps what matters away from the edges.</source>
        <translation>讓重要的內容遠離邊緣。</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>鍵盤</translation>
    </message>
    <message>
        <source>Keyboard and mouse at the monitor belong to the computer at the Type-B socket.</source>
        <translation>接在顯示器上的鍵盤和滑鼠屬於 Type-B 連接埠的電腦。</translation>
    </message>
    <message>
        <source>Keyboard and mouse at the monitor belong to the computer at the Type-C socket.</source>
        <translation>接在顯示器上的鍵盤和滑鼠屬於 Type-C 連接埠的電腦。</translation>
    </message>
    <message>
        <source>Keys of the numeric pad cannot be used.</source>
        <translation>不能使用數字鍵盤的按鍵。</translation>
    </message>
    <message>
        <source>Kill</source>
        <translation>擊殺</translation>
    </message>
    <message>
        <source>Knowledge</source>
        <translation>知識庫</translation>
    </message>
    <message>
        <source>LANGUAGE_ADD_KEY</source>
        <translation>新增快速鍵</translation>
    </message>
    <message>
        <source>LANGUAGE_SHORTCUTKEY</source>
        <translation>快速鍵</translation>
    </message>
    <message>
        <source>LANGUAGE_SHORTCUTKEY_DESC</source>
        <translation>為顯示器功能指定快速鍵，在桌面任何位置都有效：Ctrl 或 Alt 加字母或數字，按 Backspace 可清除。</translation>
    </message>
    <message>
        <source>LED matrix</source>
        <translation>LED 矩陣</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>燈</translation>
    </message>
    <message>
        <source>Lamp Belt</source>
        <translation>燈帶</translation>
    </message>
    <message>
        <source>Lamp Belt Brightness</source>
        <translation>燈帶亮度</translation>
    </message>
    <message>
        <source>Lamp Belt Color</source>
        <translation>燈帶顏色</translation>
    </message>
    <message>
        <source>Lamp Belt Effect</source>
        <translation>燈帶燈效</translation>
    </message>
    <message>
        <source>Lamp Belt Front Color</source>
        <translation>燈帶前燈顏色</translation>
    </message>
    <message>
        <source>Lamp Belt Rear Color</source>
        <translation>燈帶後燈顏色</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>大</translation>
    </message>
    <message>
        <source>Last care: %1</source>
        <translation>上次保養：%1</translation>
    </message>
    <message>
        <source>Last errors</source>
        <translation>最近的錯誤</translation>
    </message>
    <message>
        <source>Last requests to the monitor</source>
        <translation>最近傳給顯示器的要求</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍後</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>版面配置</translation>
    </message>
    <message>
        <source>Leave it on, unless you see the clearing itself as a flicker when windows close.</source>
        <translation>建議保持開啟，除非關閉視窗時您會看到清除造成的閃爍。</translation>
    </message>
    <message>
        <source>Leaves the target free but for its very middle.</source>
        <translation>除正中心外不遮擋目標。</translation>
    </message>
    <message>
        <source>Leaves the target free.</source>
        <translation>不遮擋目標。</translation>
    </message>
    <message>
        <source>Less blue light for long days.</source>
        <translation>減少藍光，適合長時間工作。</translation>
    </message>
    <message>
        <source>Lets the monitor switch between its two modes by itself. Close = off, Open = on.</source>
        <translation>讓顯示器在兩種模式之間自動切換。</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>強度</translation>
    </message>
    <message>
        <source>Level1</source>
        <translation>等級&#xa0;1</translation>
    </message>
    <message>
        <source>Level1 follows great changes only, for a quiet room; Level5 also small ones.</source>
        <translation>「等級&#xa0;1」只跟隨大的變化，適合安靜的房間；「等級&#xa0;5」也跟隨小的變化。</translation>
    </message>
    <message>
        <source>Level2</source>
        <translation>等級&#xa0;2</translation>
    </message>
    <message>
        <source>Level3</source>
        <translation>等級&#xa0;3</translation>
    </message>
    <message>
        <source>Level4</source>
        <translation>等級&#xa0;4</translation>
    </message>
    <message>
        <source>Level5</source>
        <translation>等級&#xa0;5</translation>
    </message>
    <message>
        <source>Lifts thin lines and dark surfaces of drawings.</source>
        <translation>讓圖面的細線和暗面更清楚。</translation>
    </message>
    <message>
        <source>Light Brightness</source>
        <translation>燈光亮度</translation>
    </message>
    <message>
        <source>Light Color</source>
        <translation>燈光顏色</translation>
    </message>
    <message>
        <source>Light Color B</source>
        <translation>燈光顏色 藍</translation>
    </message>
    <message>
        <source>Light Color G</source>
        <translation>燈光顏色 綠</translation>
    </message>
    <message>
        <source>Light Color R</source>
        <translation>燈光顏色 紅</translation>
    </message>
    <message>
        <source>Light Direction</source>
        <translation>燈光方向</translation>
    </message>
    <message>
        <source>Light Effect</source>
        <translation>燈光效果</translation>
    </message>
    <message>
        <source>Light Level</source>
        <translation>燈光等級</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>燈光模式</translation>
    </message>
    <message>
        <source>Light Programme</source>
        <translation>程式設計(淺色)</translation>
    </message>
    <message>
        <source>Light Sensor</source>
        <translation>光線感應</translation>
    </message>
    <message>
        <source>Light Speed</source>
        <translation>燈光速度</translation>
    </message>
    <message>
        <source>Light Temperature</source>
        <translation>燈光色溫</translation>
    </message>
    <message>
        <source>Light Timer</source>
        <translation>燈光定時</translation>
    </message>
    <message>
        <source>Light and dark follow each other around the ring.</source>
        <translation>明暗沿燈環交替流動。</translation>
    </message>
    <message>
        <source>Light in Standby</source>
        <translation>待機亮燈</translation>
    </message>
    <message>
        <source>Lighter = used longer that day, ring = cared for.</source>
        <translation>越亮&#xa0;= 當天使用越久，圓環&#xa0;= 做過保養。</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>Lines at 38 and 62 per cent: balanced, and less rigid than thirds.</source>
        <translation>線位於&#xa0;38% 和&#xa0;62% 處，比三分法更自然均衡。</translation>
    </message>
    <message>
        <source>Lines at thirds: put what matters where they cross.</source>
        <translation>三等分線，將重點放在交點上。</translation>
    </message>
    <message>
        <source>Listening…</source>
        <translation>正在取得聲音…</translation>
    </message>
    <message>
        <source>Live frames</source>
        <translation>即時畫格</translation>
    </message>
    <message>
        <source>Localdimming</source>
        <translation>區域調光</translation>
    </message>
    <message>
        <source>Locks the monitor&apos;s own menu, so that nobody changes it by accident.</source>
        <translation>鎖定顯示器本身的選單，避免誤觸。</translation>
    </message>
    <message>
        <source>Look for the monitor again</source>
        <translation>重新尋找顯示器</translation>
    </message>
    <message>
        <source>Lose a reply</source>
        <translation>遺失回應</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>低藍光</translation>
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
        <translation>MPCS/LD 模式下無法使用 Ull 等級，請換用其他情境模式。</translation>
    </message>
    <message>
        <source>MPCS/ULL FPS</source>
        <translation>MPCS/ULL FPS</translation>
    </message>
    <message>
        <source>MPCS/ULL FPS offers the Ull levels only; the others need another scene mode.</source>
        <translation>MPCS/ULL FPS 模式只提供 Ull 等級，其他等級請換用其他情境模式。</translation>
    </message>
    <message>
        <source>Mac View</source>
        <translation>Mac 檢視</translation>
    </message>
    <message>
        <source>Machine Select</source>
        <translation>選擇顯示器</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>洋紅</translation>
    </message>
    <message>
        <source>Main and side</source>
        <translation>主區與側區</translation>
    </message>
    <message>
        <source>Make it your own</source>
        <translation>依喜好調整</translation>
    </message>
    <message>
        <source>Makes colours stronger. 0 = off.</source>
        <translation>讓色彩更鮮豔。0&#xa0;為關閉。</translation>
    </message>
    <message>
        <source>Makes dark parts lighter or darker, so that you see what is in the shadows.</source>
        <translation>調整暗部的明暗，讓陰影中的細節清晰可見。</translation>
    </message>
    <message>
        <source>Makes what moves look sharper. Close = off; Low to High and Ull-Level1 to 3 are stronger in turn.</source>
        <translation>讓動態畫面更清晰。從「低」到「高」以及「Ull 等級&#xa0;1」到「Ull 等級&#xa0;3」，效果依序增強。</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>Marks along two edges, to measure and compare lengths.</source>
        <translation>沿兩條邊顯示刻度，用來測量和比較長度。</translation>
    </message>
    <message>
        <source>Matches notebooks with a Display P3 screen.</source>
        <translation>與配備 Display P3&#xa0;螢幕的筆記型電腦一致。</translation>
    </message>
    <message>
        <source>Matrix Brightness</source>
        <translation>矩陣亮度</translation>
    </message>
    <message>
        <source>Matrix Form</source>
        <translation>矩陣形狀</translation>
    </message>
    <message>
        <source>Matrix Lamp</source>
        <translation>矩陣燈</translation>
    </message>
    <message>
        <source>Matrix Mode1</source>
        <translation>矩陣模式&#xa0;1</translation>
    </message>
    <message>
        <source>Matrix Mode2</source>
        <translation>矩陣模式&#xa0;2</translation>
    </message>
    <message>
        <source>Matrix Mode3</source>
        <translation>矩陣模式&#xa0;3</translation>
    </message>
    <message>
        <source>Matrix Power Off</source>
        <translation>矩陣關機模式</translation>
    </message>
    <message>
        <source>Matrix Standby</source>
        <translation>矩陣待機模式</translation>
    </message>
    <message>
        <source>Matrix of the simulated accessory</source>
        <translation>模擬配件的矩陣</translation>
    </message>
    <message>
        <source>Maximum 192 frames</source>
        <translation>最多&#xa0;192&#xa0;個畫格</translation>
    </message>
    <message>
        <source>Median answer</source>
        <translation>回應中位數</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Menu Lock</source>
        <translation>選單鎖定</translation>
    </message>
    <message>
        <source>Menu lock already opened!</source>
        <translation>選單鎖定已開啟！</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中間</translation>
    </message>
    <message>
        <source>Middle tones a little brighter than usual.</source>
        <translation>中間調比通常略亮。</translation>
    </message>
    <message>
        <source>Middle tones a little darker, for films in a dim room.</source>
        <translation>中間調略暗，適合在昏暗的房間看電影。</translation>
    </message>
    <message>
        <source>Middle+</source>
        <translation>中間偏上</translation>
    </message>
    <message>
        <source>Middle-</source>
        <translation>中間偏下</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>鏡像</translation>
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
        <translation>型號</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>顯示器</translation>
    </message>
    <message>
        <source>Monitor Health</source>
        <translation>顯示器狀況</translation>
    </message>
    <message>
        <source>More than two fifths of the screen&apos;s width: small text stays readable.</source>
        <translation>超過螢幕寬度的五分之二：小字也能看清。</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>捲動方式</translation>
    </message>
    <message>
        <source>Moves now and then, for everyday work.</source>
        <translation>偶爾移動，適合日常工作。</translation>
    </message>
    <message>
        <source>Moves often: for menus and maps that stand still for hours.</source>
        <translation>經常移動：適合選單、地圖等長時間靜止的畫面。</translation>
    </message>
    <message>
        <source>Moves seldom: nobody notices it.</source>
        <translation>很少移動：不會被察覺。</translation>
    </message>
    <message>
        <source>Moves the whole picture by a few pixels now and then, so that edges do not burn in. Close = off.</source>
        <translation>不時將整個畫面移動幾個像素，避免邊緣烙印。關閉&#xa0;= 不啟用。</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>電影</translation>
    </message>
    <message>
        <source>Movie Mode</source>
        <translation>電影模式</translation>
    </message>
    <message>
        <source>Much darker: the best protection where the same picture stands for hours.</source>
        <translation>明顯變暗：同一畫面停留數小時時保護效果最好。</translation>
    </message>
    <message>
        <source>Multi-window</source>
        <translation>多視窗</translation>
    </message>
    <message>
        <source>Music Mode</source>
        <translation>音樂模式</translation>
    </message>
    <message>
        <source>Must match the computer&apos;s signal. RGB Auto = found out by itself, RGB Limit = 16 to 235, RGB Full = 0 to 255.</source>
        <translation>需與電腦的訊號一致。「RGB 自動」自動辨識，有限範圍為&#xa0;16&#xa0;至&#xa0;235，全範圍為&#xa0;0&#xa0;至&#xa0;255。</translation>
    </message>
    <message>
        <source>My layout</source>
        <translation>我的版面</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>無</translation>
    </message>
    <message>
        <source>NTSC Video</source>
        <translation>NTSC 視訊</translation>
    </message>
    <message>
        <source>NTSC television.</source>
        <translation>NTSC 制式電視。</translation>
    </message>
    <message>
        <source>Name of the layout</source>
        <translation>版面名稱</translation>
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
        <translation>接近通用的白色，稍暖一點。</translation>
    </message>
    <message>
        <source>New device</source>
        <translation>新裝置</translation>
    </message>
    <message>
        <source>New layout</source>
        <translation>新增版面</translation>
    </message>
    <message>
        <source>Next form</source>
        <translation>下一款</translation>
    </message>
    <message>
        <source>Next value</source>
        <translation>下一個值</translation>
    </message>
    <message>
        <source>Next zone</source>
        <translation>下一個區域</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>夜間</translation>
    </message>
    <message>
        <source>Night Loom</source>
        <translation>Night Loom</translation>
    </message>
    <message>
        <source>Night Mode</source>
        <translation>夜間模式</translation>
    </message>
    <message>
        <source>Night View C.T</source>
        <translation>夜間色溫</translation>
    </message>
    <message>
        <source>Night Vision</source>
        <translation>夜視</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>No Signal Timer</source>
        <translation>無訊號計時器</translation>
    </message>
    <message>
        <source>No Type-C data cable or HDMI/DP + USB data cable connected.</source>
        <translation>未連接 Type-C 資料纜線或 HDMI/DP + USB 資料纜線。</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>無回應</translation>
    </message>
    <message>
        <source>No answer for %1 s</source>
        <translation>%1&#xa0;秒無回應</translation>
    </message>
    <message>
        <source>No care has been seen yet: hours count from the first start of this tool.</source>
        <translation>尚無保養記錄：小時數從首次啟動本工具起計算。</translation>
    </message>
    <message>
        <source>No file path selected.</source>
        <translation>未選擇檔案路徑。</translation>
    </message>
    <message>
        <source>No limit</source>
        <translation>不限</translation>
    </message>
    <message>
        <source>No programs yet: add one and choose its scene.</source>
        <translation>尚無應用程式：請新增應用程式並選擇其情境。</translation>
    </message>
    <message>
        <source>No shortcuts yet: choose a function above and add it.</source>
        <translation>尚無快速鍵：請在上方選擇功能並新增。</translation>
    </message>
    <message>
        <source>No window is in front: press on the one that you mean first.</source>
        <translation>前面沒有視窗：請先點選要排列的視窗。</translation>
    </message>
    <message>
        <source>No zone beside it can take this one.</source>
        <translation>沒有可併入的相鄰區域。</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>雜訊</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>None.</source>
        <translation>無。</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Not chosen here yet. The accessory does not tell what it has.</source>
        <translation>尚未在此選擇，配件不會告知目前的設定。</translation>
    </message>
    <message>
        <source>Not told: %1</source>
        <translation>未讀到：%1</translation>
    </message>
    <message>
        <source>Not uploaded from here. In Custom Mode it is &quot;%1&quot;.</source>
        <translation>尚未從此處寫入。對應自訂模式「%1」。</translation>
    </message>
    <message>
        <source>Nothing above the point: for shots that fall.</source>
        <translation>瞄準點上方沒有遮擋，適合有下墜的彈道。</translation>
    </message>
    <message>
        <source>Nothing can be heard or seen: the lamps keep their last colour.</source>
        <translation>聽不到聲音或看不到畫面：燈光保持最後的顏色。</translation>
    </message>
    <message>
        <source>Nothing is dimmed.</source>
        <translation>不會變暗。</translation>
    </message>
    <message>
        <source>Nothing is drawn over the picture.</source>
        <translation>畫面上不疊加任何內容。</translation>
    </message>
    <message>
        <source>Nothing is followed but in one of the two rhythm modes.</source>
        <translation>僅在兩種律動模式下才會跟隨。</translation>
    </message>
    <message>
        <source>Nothing is heard: no program plays, or the sound output is gone.</source>
        <translation>沒有聲音：沒有應用程式在播放，或音訊輸出已中斷。</translation>
    </message>
    <message>
        <source>Nothing moves but in the mode &quot;Effect&quot;.</source>
        <translation>僅在「燈效」模式下才有變化。</translation>
    </message>
    <message>
        <source>Nothing plays</source>
        <translation>無播放</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>OSD Language</source>
        <translation>OSD 語言</translation>
    </message>
    <message>
        <source>OSD Setting</source>
        <translation>OSD 設定</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>關</translation>
    </message>
    <message>
        <source>Office Aid</source>
        <translation>辦公輔助</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Old place</source>
        <translation>原位置</translation>
    </message>
    <message>
        <source>Oled Care</source>
        <translation>OLED 保養</translation>
    </message>
    <message>
        <source>On</source>
        <translation>開</translation>
    </message>
    <message>
        <source>On its way to the monitor.</source>
        <translation>正在傳送到顯示器。</translation>
    </message>
    <message>
        <source>On now.</source>
        <translation>目前設定。</translation>
    </message>
    <message>
        <source>On now: %1</source>
        <translation>目前：%1</translation>
    </message>
    <message>
        <source>On-screen menu</source>
        <translation>螢幕選單</translation>
    </message>
    <message>
        <source>One colour melts into the next. Off = it changes at once.</source>
        <translation>顏色逐漸過渡到下一種。關閉&#xa0;= 立即變換。</translation>
    </message>
    <message>
        <source>One colour that stands still. Calm enough for work.</source>
        <translation>固定的單色燈光，平靜，適合工作。</translation>
    </message>
    <message>
        <source>One input fills the screen.</source>
        <translation>一路輸入佔滿整個螢幕。</translation>
    </message>
    <message>
        <source>Onion Skin</source>
        <translation>洋蔥皮</translation>
    </message>
    <message>
        <source>Only the modes &quot;Normal&quot; and &quot;Effect&quot; have a colour of their own.</source>
        <translation>僅「一般」和「燈效」模式可以設定顏色。</translation>
    </message>
    <message>
        <source>Only the monitor that this tool sets can be read.</source>
        <translation>只能讀取本工具所設定的顯示器。</translation>
    </message>
    <message>
        <source>Only the small window of PIP has a size and a place.</source>
        <translation>只有 PIP 的小視窗才有大小和位置。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Open cross</source>
        <translation>開口十字</translation>
    </message>
    <message>
        <source>Open the page</source>
        <translation>開啟網頁</translation>
    </message>
    <message>
        <source>Out of order</source>
        <translation>順序錯誤</translation>
    </message>
    <message>
        <source>Output Range</source>
        <translation>輸出範圍</translation>
    </message>
    <message>
        <source>PAL &amp; SECAM</source>
        <translation>PAL &amp; SECAM</translation>
    </message>
    <message>
        <source>PAL and SECAM television.</source>
        <translation>PAL 與 SECAM 制式電視。</translation>
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
        <translation>紙張</translation>
    </message>
    <message>
        <source>Paper Mode</source>
        <translation>紙張模式</translation>
    </message>
    <message>
        <source>Paper_A4</source>
        <translation>A4&#xa0;紙</translation>
    </message>
    <message>
        <source>Paper_B5</source>
        <translation>B5&#xa0;紙</translation>
    </message>
    <message>
        <source>Paper_B6</source>
        <translation>B6&#xa0;紙</translation>
    </message>
    <message>
        <source>Parameters of the mode</source>
        <translation>模式的參數</translation>
    </message>
    <message>
        <source>Pearl</source>
        <translation>流珠</translation>
    </message>
    <message>
        <source>Photo(P3-D65)</source>
        <translation>相片(P3-D65)</translation>
    </message>
    <message>
        <source>Photographs at a D65 white.</source>
        <translation>D65&#xa0;白點下的相片。</translation>
    </message>
    <message>
        <source>Picture Enhance</source>
        <translation>畫質增強</translation>
    </message>
    <message>
        <source>Picture by picture: two inputs side by side, each on half of the screen, to work on both.</source>
        <translation>畫面並排：兩路輸入左右各佔半個螢幕，便於同時處理。</translation>
    </message>
    <message>
        <source>Picture in picture: a second input in a small window over the first, to keep an eye on another computer.</source>
        <translation>子母畫面：第二路輸入顯示在小視窗裡，疊在第一路之上，便於留意另一台電腦。</translation>
    </message>
    <message>
        <source>Pictures are shown as they come.</source>
        <translation>畫面原樣顯示。</translation>
    </message>
    <message>
        <source>Pixel Shift</source>
        <translation>像素位移</translation>
    </message>
    <message>
        <source>Pixels change as fast as the panel does by itself. Nothing is driven harder.</source>
        <translation>像素依面板本身的速度變化，不額外加速。</translation>
    </message>
    <message>
        <source>Pixels change faster and motion smears less. Close = off, Topspeed = fastest, which may leave bright edges.</source>
        <translation>加快像素變化，減少殘影。「極速」最快，但可能出現亮邊。</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Plain, floating point</source>
        <translation>一般格式，浮點</translation>
    </message>
    <message>
        <source>Plain, integer</source>
        <translation>一般格式，整數</translation>
    </message>
    <message>
        <source>Playback Level</source>
        <translation>播放等級</translation>
    </message>
    <message>
        <source>Played</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Playing Interval</source>
        <translation>播放間隔</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>已連接</translation>
    </message>
    <message>
        <source>Point at an event to see its picture.</source>
        <translation>指向事件即可查看其圖案。</translation>
    </message>
    <message>
        <source>Power LED</source>
        <translation>電源指示燈</translation>
    </message>
    <message>
        <source>Power Off Mode</source>
        <translation>關機模式</translation>
    </message>
    <message>
        <source>Power Saving</source>
        <translation>省電</translation>
    </message>
    <message>
        <source>Power for devices at the monitor&apos;s USB sockets, and the picture through the Type-C socket (DP Alt Mode).</source>
        <translation>為接在顯示器 USB 連接埠上的裝置供電，以及透過 Type-C 連接埠傳輸畫面（DP Alt 模式）。</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Press a number. That of the window&apos;s own zone gives it its old place back. Esc closes.</source>
        <translation>按數字鍵選擇。再按視窗所在區域的數字，視窗回到原位置。Esc 關閉。</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
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
        <translation>應用程式</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>Proofs under a D50 light.</source>
        <translation>D50&#xa0;光源下的打樣。</translation>
    </message>
    <message>
        <source>Pull out</source>
        <translation>拔出</translation>
    </message>
    <message>
        <source>Pull out in mid-transfer</source>
        <translation>傳輸中拔出</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>紫色</translation>
    </message>
    <message>
        <source>Puts the window in front into a part of the screen. Here you choose how the screen is divided.</source>
        <translation>將最前面的視窗放到螢幕的一部分。在這裡選擇螢幕如何劃分。</translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation>QR 碼</translation>
    </message>
    <message>
        <source>QUORVEL desk</source>
        <translation>QUORVEL 模擬台</translation>
    </message>
    <message>
        <source>Quarters</source>
        <translation>四等分</translation>
    </message>
    <message>
        <source>Questions and answers about your monitor, in your web browser.</source>
        <translation>在網頁瀏覽器中檢視有關顯示器的常見問題與解答。</translation>
    </message>
    <message>
        <source>Quick Boot</source>
        <translation>快速啟動</translation>
    </message>
    <message>
        <source>Quiet: seen best on snow and bright walls.</source>
        <translation>不張揚：在雪地和明亮的牆面上最醒目。</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>RGB Auto</source>
        <translation>RGB 自動</translation>
    </message>
    <message>
        <source>RGB Full</source>
        <translation>RGB 全範圍</translation>
    </message>
    <message>
        <source>RGB Limit</source>
        <translation>RGB 有限範圍</translation>
    </message>
    <message>
        <source>Rainbow</source>
        <translation>彩虹</translation>
    </message>
    <message>
        <source>Raises the contrast between light and dark parts. 0 = off.</source>
        <translation>增強明暗部分的對比。0&#xa0;為關閉。</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>取樣率</translation>
    </message>
    <message>
        <source>Read everything once</source>
        <translation>全部讀取一次</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>閱讀</translation>
    </message>
    <message>
        <source>Reading Mode</source>
        <translation>閱讀模式</translation>
    </message>
    <message>
        <source>Reading sample 0123</source>
        <translation>閱讀範例&#xa0;0123</translation>
    </message>
    <message>
        <source>Reading: %1 of %2</source>
        <translation>正在讀取：%1 / %2</translation>
    </message>
    <message>
        <source>Rear Brightness</source>
        <translation>後燈亮度</translation>
    </message>
    <message>
        <source>Rear Color</source>
        <translation>後燈顏色</translation>
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
        <translation>使用多台顯示器時，建議在「系統 -&gt; 顯示器」中設定「延伸這些顯示器」。</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>記錄</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>紅色</translation>
    </message>
    <message>
        <source>Red, green and blue belong to User1, User2 and User3 of Color Temperature.</source>
        <translation>紅、綠、藍只用於色溫的「使用者&#xa0;1」「使用者&#xa0;2」「使用者&#xa0;3」。</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Reduces the glow around bright things on a dark ground.</source>
        <translation>減弱深色背景上明亮物體周圍的光暈。</translation>
    </message>
    <message>
        <source>Refresh Rate</source>
        <translation>更新率</translation>
    </message>
    <message>
        <source>Refresh Rate Place</source>
        <translation>更新率位置</translation>
    </message>
    <message>
        <source>Refuse format</source>
        <translation>拒絕格式</translation>
    </message>
    <message>
        <source>Refuse writes</source>
        <translation>拒絕寫入</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes each time the chosen span has passed. Close = off.</source>
        <translation>每過所選的時間，提醒您讓眼睛休息。</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation>正在產生</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>要求</translation>
    </message>
    <message>
        <source>Reset Factory</source>
        <translation>恢復原廠設定</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Rhythm</source>
        <translation>律動</translation>
    </message>
    <message>
        <source>Rhythm Color</source>
        <translation>律動顏色</translation>
    </message>
    <message>
        <source>Rhythm Color L</source>
        <translation>律動顏色 左</translation>
    </message>
    <message>
        <source>Rhythm Color R</source>
        <translation>律動顏色 右</translation>
    </message>
    <message>
        <source>Rhythm Level</source>
        <translation>律動等級</translation>
    </message>
    <message>
        <source>Rhythm Source</source>
        <translation>律動來源</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>圓環</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>圓形</translation>
    </message>
    <message>
        <source>Row %1, cell %2: %3</source>
        <translation>第&#xa0;%1&#xa0;列第&#xa0;%2&#xa0;格：%3</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>標尺</translation>
    </message>
    <message>
        <source>Run on startup</source>
        <translation>開機時啟動</translation>
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
        <translation>飽和度</translation>
    </message>
    <message>
        <source>Saturation R Y G C B M</source>
        <translation>飽和度 R Y G C B M</translation>
    </message>
    <message>
        <source>Saturation follows Color Enchance while that is above 0.</source>
        <translation>色彩增強大於&#xa0;0&#xa0;時，飽和度由它決定。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Save Animate</source>
        <translation>儲存動畫</translation>
    </message>
    <message>
        <source>Save Data</source>
        <translation>儲存資料</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>儲存檔案</translation>
    </message>
    <message>
        <source>Save, export or import the animation first.</source>
        <translation>請先儲存、匯出或匯入動畫。</translation>
    </message>
    <message>
        <source>Scan it with a phone to read more about your monitor.</source>
        <translation>用手機掃描，進一步了解您的顯示器。</translation>
    </message>
    <message>
        <source>Scence Follow</source>
        <translation>情境跟隨</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>情境模式</translation>
    </message>
    <message>
        <source>Scene block</source>
        <translation>情境資料區塊</translation>
    </message>
    <message>
        <source>Scene block: one part came late</source>
        <translation>情境資料區塊：有一部分遲到</translation>
    </message>
    <message>
        <source>Scene block: one part did not come</source>
        <translation>情境資料區塊：有一部分未收到</translation>
    </message>
    <message>
        <source>Scene mode</source>
        <translation>情境模式</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>螢幕</translation>
    </message>
    <message>
        <source>Screen Splitter</source>
        <translation>螢幕分割</translation>
    </message>
    <message>
        <source>Screen of the simulated monitor</source>
        <translation>模擬顯示器的螢幕</translation>
    </message>
    <message>
        <source>Scroll Left</source>
        <translation>向左捲動</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>向右捲動</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>向下捲動</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>向上捲動</translation>
    </message>
    <message>
        <source>Second control</source>
        <translation>第二個控制項</translation>
    </message>
    <message>
        <source>Second tone</source>
        <translation>第二音</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>分類</translation>
    </message>
    <message>
        <source>Seen best in dark scenes.</source>
        <translation>在昏暗的場景中最醒目。</translation>
    </message>
    <message>
        <source>Seen best in the dark and on blue.</source>
        <translation>在黑暗中和藍色上最醒目。</translation>
    </message>
    <message>
        <source>Seen best on green and grey, as in woods and towns.</source>
        <translation>在綠色和灰色上最醒目，例如樹林和城市。</translation>
    </message>
    <message>
        <source>Seen best on sand, fire and rust.</source>
        <translation>在沙地、火焰和鏽色上最醒目。</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Select File</source>
        <translation>選擇檔案</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>全不選</translation>
    </message>
    <message>
        <source>Sent again and taken; nothing to do.</source>
        <translation>再次傳送後已接受，無需處理。</translation>
    </message>
    <message>
        <source>Service Settings</source>
        <translation>服務設定</translation>
    </message>
    <message>
        <source>Set %1 back to &quot;%2&quot;</source>
        <translation>將「%1」改回「%2」</translation>
    </message>
    <message>
        <source>Set everything back to how the monitor left the factory? The screen goes dark for a few seconds.</source>
        <translation>要將顯示器的所有設定恢復為原廠狀態嗎？螢幕會變黑數秒。</translation>
    </message>
    <message>
        <source>Sets everything in the monitor back to how it left the factory.</source>
        <translation>將顯示器的所有設定恢復為原廠狀態。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Shadow Balance</source>
        <translation>暗部平衡</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>形狀</translation>
    </message>
    <message>
        <source>Sharp motion with local dimming.</source>
        <translation>動態清晰，並支援區域調光。</translation>
    </message>
    <message>
        <source>Sharp movement for games.</source>
        <translation>動態畫面清晰，適合遊戲。</translation>
    </message>
    <message>
        <source>Sharp movement with a short delay, for fast games.</source>
        <translation>動態畫面清晰且延遲低，適合快節奏遊戲。</translation>
    </message>
    <message>
        <source>Sharper still, with a short delay.</source>
        <translation>更加清晰，延遲低。</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>銳利度</translation>
    </message>
    <message>
        <source>Short flashes. Not for people who do not bear flashing light.</source>
        <translation>短促的閃光。對閃光敏感者請勿使用。</translation>
    </message>
    <message>
        <source>Shortcut Key</source>
        <translation>快速鍵</translation>
    </message>
    <message>
        <source>Shortcut overlay</source>
        <translation>快速鍵提示</translation>
    </message>
    <message>
        <source>Shortens the delay between your hand and the picture in fast games. Adaptive-Sync cannot be chosen meanwhile.</source>
        <translation>縮短快節奏遊戲中操作到畫面的延遲。開啟期間無法選擇 Adaptive-Sync。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>顯示</translation>
    </message>
    <message>
        <source>Show Time(s)</source>
        <translation>顯示時間(秒)</translation>
    </message>
    <message>
        <source>Show the zones</source>
        <translation>顯示區域</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>顯示內容</translation>
    </message>
    <message>
        <source>Shows a ruler on the screen. Angle close = off, Ruler = for lengths, Angle Ruler = for angles.</source>
        <translation>在螢幕上顯示標尺。「標尺」用於量長度，「量角器」用於量角度。</translation>
    </message>
    <message>
        <source>Shows guide lines that help to line things up. Close = off, Open = on.</source>
        <translation>顯示參考線，協助您對齊內容。</translation>
    </message>
    <message>
        <source>Shows in a corner how many pictures a second the monitor gets.</source>
        <translation>在螢幕一角顯示顯示器每秒收到的畫面數。</translation>
    </message>
    <message>
        <source>Shows on the desktop what a shortcut has just changed.</source>
        <translation>在桌面上顯示快速鍵剛剛變更的內容。</translation>
    </message>
    <message>
        <source>Shows two inputs at once. Drag the small window of PIP to a corner, or one of its edges to a size.</source>
        <translation>同時顯示兩路輸入。可將 PIP 的小視窗拖曳到角落，或拖曳其邊緣改變大小。</translation>
    </message>
    <message>
        <source>Silence</source>
        <translation>無聲</translation>
    </message>
    <message>
        <source>Silences the monitor for a while; the volume stays as it is set.</source>
        <translation>讓顯示器暫時靜音，音量設定保持不變。</translation>
    </message>
    <message>
        <source>Simulated monitor</source>
        <translation>模擬顯示器</translation>
    </message>
    <message>
        <source>Single points light up here and there.</source>
        <translation>光點此起彼落地亮起。</translation>
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
        <translation>較慢，使用長纜線或舊纜線時更穩定。</translation>
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
        <translation>柔和過渡</translation>
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
        <translation>聲音</translation>
    </message>
    <message>
        <source>Sound = what this computer plays, Screen = the picture&apos;s edges. Higher levels follow smaller changes.</source>
        <translation>聲音&#xa0;= 本機播放的聲音，螢幕&#xa0;= 畫面邊緣的顏色。等級越高，跟隨的變化越細微。</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation>音訊輸出</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>頻譜</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Standard Mode</source>
        <translation>標準模式</translation>
    </message>
    <message>
        <source>Standby Mode</source>
        <translation>待機模式</translation>
    </message>
    <message>
        <source>Standing</source>
        <translation>靜止</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>星光</translation>
    </message>
    <message>
        <source>Start care</source>
        <translation>開始保養</translation>
    </message>
    <message>
        <source>Static Icon</source>
        <translation>靜態圖示</translation>
    </message>
    <message>
        <source>Still Picture</source>
        <translation>靜止畫面</translation>
    </message>
    <message>
        <source>Stop service</source>
        <translation>停止服務</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>碼錶</translation>
    </message>
    <message>
        <source>Stopwatch Place</source>
        <translation>碼錶位置</translation>
    </message>
    <message>
        <source>Stopwatch Time</source>
        <translation>碼錶時間</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>強</translation>
    </message>
    <message>
        <source>Super Resolution</source>
        <translation>超解析度</translation>
    </message>
    <message>
        <source>Super Resolution: makes blurred or enlarged pictures look sharper. 0 = off.</source>
        <translation>超解析度：讓模糊或放大的畫面更清晰。0&#xa0;為關閉。</translation>
    </message>
    <message>
        <source>Switch off</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Switch this row on to change its keys.</source>
        <translation>開啟這一列的開關後才能變更按鍵。</translation>
    </message>
    <message>
        <source>Switched off.</source>
        <translation>已關閉。</translation>
    </message>
    <message>
        <source>Switched on.</source>
        <translation>已開啟。</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>系統設定</translation>
    </message>
    <message>
        <source>Take one that goes with the wall: light on a coloured wall looks different.</source>
        <translation>請依牆面選擇：燈光照在有色的牆上會有不同的效果。</translation>
    </message>
    <message>
        <source>Take the corner in which nothing stands that you need.</source>
        <translation>請選擇沒有所需內容的角落。</translation>
    </message>
    <message>
        <source>Taken by another</source>
        <translation>被佔用</translation>
    </message>
    <message>
        <source>Takes blue out of the picture, which is easier on the eyes. 0 = off.</source>
        <translation>減少畫面中的藍光，讓眼睛更舒適。0&#xa0;為關閉。</translation>
    </message>
    <message>
        <source>Tapering</source>
        <translation>錐形</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>工作列</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>範本</translation>
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
        <translation>切換顯示器時，應用程式將重新載入資料。</translation>
    </message>
    <message>
        <source>The APP will restart automatically when switching languages.</source>
        <translation>切換語言時，應用程式將自動重新啟動。</translation>
    </message>
    <message>
        <source>The LED matrix moves with the sound that this computer plays. Close = off, Open = on.</source>
        <translation>LED 矩陣隨電腦播放的聲音變化。</translation>
    </message>
    <message>
        <source>The accessory becomes the next of its models; the button is up while it is the first</source>
        <translation>配件變為下一個型號；為第一個型號時按鈕彈起</translation>
    </message>
    <message>
        <source>The accessory cannot be reached. What you choose goes to it with the next change.</source>
        <translation>無法連線至配件。您的選擇會隨下一次變更一起傳送。</translation>
    </message>
    <message>
        <source>The accessory did not take everything.</source>
        <translation>配件沒有接收全部資料。</translation>
    </message>
    <message>
        <source>The accessory has it, but Animate Mode cannot show it: %1</source>
        <translation>配件已接收，但動畫模式無法顯示：%1</translation>
    </message>
    <message>
        <source>The accessory is at work: wait until it has finished, or cancel the work on its page.</source>
        <translation>配件正在工作：請等待完成，或在其頁面上取消。</translation>
    </message>
    <message>
        <source>The accessory shows what this computer plays as soon as the music mode is open.</source>
        <translation>開啟音樂模式後，配件會顯示本機正在播放的聲音。</translation>
    </message>
    <message>
        <source>The accessory takes %1 of the %2 frames.</source>
        <translation>共&#xa0;%2&#xa0;個畫格，配件只接收前&#xa0;%1&#xa0;個。</translation>
    </message>
    <message>
        <source>The accessory takes no report until the button is released</source>
        <translation>放開按鈕前，配件不接收任何報告</translation>
    </message>
    <message>
        <source>The answer to the next read never arrives</source>
        <translation>下一次讀取收不到回應</translation>
    </message>
    <message>
        <source>The belt stands still in its colour.</source>
        <translation>燈帶保持自己的顏色，靜止不動。</translation>
    </message>
    <message>
        <source>The brightest light, for a bright room.</source>
        <translation>最亮的燈光，適合明亮的房間。</translation>
    </message>
    <message>
        <source>The brightest light, seen across a bright room.</source>
        <translation>最亮的燈光，在明亮的房間裡也看得到。</translation>
    </message>
    <message>
        <source>The brightness follows the light in the room. Close = off, Open = on.</source>
        <translation>亮度隨室內光線變化。</translation>
    </message>
    <message>
        <source>The cable is pulled out at the eighth report from now</source>
        <translation>從現在起第八個報告時拔出纜線</translation>
    </message>
    <message>
        <source>The cable is pulled out until the button is released</source>
        <translation>纜線保持拔出，直到放開按鈕</translation>
    </message>
    <message>
        <source>The colour of the belt along the lower edge. Auto = runs through all colours.</source>
        <translation>底邊燈帶的顏色。自動&#xa0;= 依序變換所有顏色。</translation>
    </message>
    <message>
        <source>The colour of the belt at the back of the foot.</source>
        <translation>底座後側燈帶的顏色。</translation>
    </message>
    <message>
        <source>The colour of the belt at the front of the foot.</source>
        <translation>底座前側燈帶的顏色。</translation>
    </message>
    <message>
        <source>The colour of the light on the desk. White is best for reading and writing.</source>
        <translation>桌面燈光的顏色。白色最適合讀寫。</translation>
    </message>
    <message>
        <source>The colour of the light on the wall behind the screen.</source>
        <translation>螢幕後牆面燈光的顏色。</translation>
    </message>
    <message>
        <source>The colour of the steady light and of the effects. Auto = runs through all colours.</source>
        <translation>「一般」和「燈效」模式的顏色。自動&#xa0;= 依序變換所有顏色。</translation>
    </message>
    <message>
        <source>The colours of the cinema.</source>
        <translation>電影院的色彩。</translation>
    </message>
    <message>
        <source>The computer and its monitors sleep until the button is released</source>
        <translation>放開按鈕前，電腦及其顯示器處於睡眠狀態</translation>
    </message>
    <message>
        <source>The deepest black. A glow may show around bright things.</source>
        <translation>黑色最深。明亮物體周圍可能出現光暈。</translation>
    </message>
    <message>
        <source>The disk did not take everything.</source>
        <translation>磁碟未能寫入全部內容。</translation>
    </message>
    <message>
        <source>The drawn frames are not saved. Save them now?</source>
        <translation>繪製的畫格尚未儲存。現在儲存嗎？</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>檔案無法讀取：%1</translation>
    </message>
    <message>
        <source>The file cannot be written: %1</source>
        <translation>檔案無法寫入：%1</translation>
    </message>
    <message>
        <source>The file has become too large.</source>
        <translation>檔案過大。</translation>
    </message>
    <message>
        <source>The file holds %1 frames; the first %2 were taken.</source>
        <translation>檔案中有&#xa0;%1&#xa0;個畫格，只匯入了前&#xa0;%2&#xa0;個。</translation>
    </message>
    <message>
        <source>The file holds no whole frame.</source>
        <translation>檔案中沒有完整的畫格。</translation>
    </message>
    <message>
        <source>The form of the matrix that you have: what is shown is drawn for it.</source>
        <translation>請選擇您的矩陣的形狀，畫面會依此繪製。</translation>
    </message>
    <message>
        <source>The grey scale of medical pictures.</source>
        <translation>醫學影像的灰階。</translation>
    </message>
    <message>
        <source>The hotkey you set is occupied,please reset it again!</source>
        <translation>您設定的快速鍵已被佔用，請重新設定！</translation>
    </message>
    <message>
        <source>The lamp belt along the lower edge and around the foot has a light of its own.</source>
        <translation>底邊和底座四周的燈帶有獨立的燈光。</translation>
    </message>
    <message>
        <source>The lamp in front lights the desk, the one at the rear the wall: less contrast for tired eyes.</source>
        <translation>前燈照亮桌面，後燈照亮牆面：減小明暗反差，緩解眼睛疲勞。</translation>
    </message>
    <message>
        <source>The lamp is dark. Only the picture tells that the monitor is on.</source>
        <translation>指示燈不亮，只有畫面表示顯示器已開啟。</translation>
    </message>
    <message>
        <source>The lamps behind the screen are dark.</source>
        <translation>螢幕背後的燈不亮。</translation>
    </message>
    <message>
        <source>The lamps take the colours of the picture&apos;s edges. For films and games.</source>
        <translation>燈光採用畫面邊緣的顏色，適合電影和遊戲。</translation>
    </message>
    <message>
        <source>The language of the monitor&apos;s own menu, not of this tool.</source>
        <translation>顯示器本身選單的語言，而不是本工具的語言。</translation>
    </message>
    <message>
        <source>The layout has no such zone.</source>
        <translation>版面中沒有這個區域。</translation>
    </message>
    <message>
        <source>The left and the right half follow each its own side. For films.</source>
        <translation>左右兩半各自跟隨自己的一側，適合看電影。</translation>
    </message>
    <message>
        <source>The light behind the picture is even. Best for text.</source>
        <translation>背光均勻，最適合閱讀文字。</translation>
    </message>
    <message>
        <source>The light flows along the belt.</source>
        <translation>燈光沿燈帶流動。</translation>
    </message>
    <message>
        <source>The light moves by itself. For games and guests.</source>
        <translation>燈光自動變化，適合遊戲和聚會。</translation>
    </message>
    <message>
        <source>The lighting goes out and comes back with the screen.</source>
        <translation>燈光隨螢幕一同熄滅和亮起。</translation>
    </message>
    <message>
        <source>The lighting goes out by itself after this time. Close = it stays on.</source>
        <translation>燈光在此時間後自動熄滅。關閉&#xa0;= 一直亮著。</translation>
    </message>
    <message>
        <source>The lighting stays on while the monitor sleeps, as a light for the night.</source>
        <translation>顯示器待機時燈光保持亮起，可作夜燈。</translation>
    </message>
    <message>
        <source>The maker&apos;s own tuning.</source>
        <translation>原廠專屬調校。</translation>
    </message>
    <message>
        <source>The matrix shows the time of day. Close = off, Open = on.</source>
        <translation>在矩陣上顯示目前時間。</translation>
    </message>
    <message>
        <source>The monitor and devices at its HDMI sockets switch each other on and off.</source>
        <translation>讓顯示器與接在 HDMI 連接埠上的裝置一同開機和關機。</translation>
    </message>
    <message>
        <source>The monitor answers nothing until the button is released</source>
        <translation>顯示器不再回應，直到放開按鈕</translation>
    </message>
    <message>
        <source>The monitor begins by itself when it goes to standby.</source>
        <translation>顯示器進入待機時自動開始。</translation>
    </message>
    <message>
        <source>The monitor comes on faster, but needs more power while it is off.</source>
        <translation>顯示器開啟更快，但關閉時耗電略多。</translation>
    </message>
    <message>
        <source>The monitor did not confirm this value.</source>
        <translation>顯示器沒有確認此值。</translation>
    </message>
    <message>
        <source>The monitor did not take &quot;%1&quot;.</source>
        <translation>顯示器未接受「%1」。</translation>
    </message>
    <message>
        <source>The monitor did not take the reset.</source>
        <translation>顯示器未執行重設。</translation>
    </message>
    <message>
        <source>The monitor did not take the size.</source>
        <translation>顯示器未接受此尺寸。</translation>
    </message>
    <message>
        <source>The monitor did not take this setting.</source>
        <translation>顯示器未接受此設定。</translation>
    </message>
    <message>
        <source>The monitor does not answer; the reading was given up.</source>
        <translation>顯示器沒有回應，讀取已放棄。</translation>
    </message>
    <message>
        <source>The monitor does not remind you.</source>
        <translation>顯示器不提醒您。</translation>
    </message>
    <message>
        <source>The monitor finds out which range the computer sends.</source>
        <translation>顯示器自動辨識電腦傳送的範圍。</translation>
    </message>
    <message>
        <source>The monitor from behind, with its lamps</source>
        <translation>顯示器背面及其燈光</translation>
    </message>
    <message>
        <source>The monitor has a value that is none of these.</source>
        <translation>顯示器的值不在這些選項之中。</translation>
    </message>
    <message>
        <source>The monitor has not told this value yet.</source>
        <translation>尚未從顯示器讀取此值。</translation>
    </message>
    <message>
        <source>The monitor has not told when the next care is due.</source>
        <translation>顯示器尚未告知下次保養的時間。</translation>
    </message>
    <message>
        <source>The monitor has not told yet which functions it has.</source>
        <translation>顯示器尚未告知它有哪些功能。</translation>
    </message>
    <message>
        <source>The monitor is changing its scene mode.</source>
        <translation>顯示器正在切換情境模式。</translation>
    </message>
    <message>
        <source>The monitor itself says on the screen that care is due.</source>
        <translation>需要保養時，由顯示器自己在螢幕上提示。</translation>
    </message>
    <message>
        <source>The monitor keeps pace with the game: no torn or jerky pictures. Game Rush must be off.</source>
        <translation>顯示器與遊戲的更新率同步，畫面不撕裂、不卡頓。需先關閉「遊戲衝刺」。</translation>
    </message>
    <message>
        <source>The monitor notices when its screen is turned upright. Close = off, Open = on.</source>
        <translation>顯示器感應螢幕是否轉為直立。</translation>
    </message>
    <message>
        <source>The monitor reminds you each time that this has passed. Look far away for a minute then.</source>
        <translation>每過這段時間顯示器會提醒您。請遠眺一分鐘。</translation>
    </message>
    <message>
        <source>The monitor takes no value until the button is released</source>
        <translation>顯示器不接受任何值，直到放開按鈕</translation>
    </message>
    <message>
        <source>The monitor that this was about is no longer in use. Nothing was sent.</source>
        <translation>這原本針對的顯示器已不在使用，未傳送任何內容。</translation>
    </message>
    <message>
        <source>The monitor took only a part of the colour: its lamps now show another one.</source>
        <translation>顯示器只接受了顏色的一部分：燈光現在顯示的是另一種顏色。</translation>
    </message>
    <message>
        <source>The monitor uses less power. Close = off, Level2 saves the most.</source>
        <translation>讓顯示器更省電。「等級&#xa0;2」最省電。</translation>
    </message>
    <message>
        <source>The next care is due after %1 more hours of use.</source>
        <translation>再使用&#xa0;%1&#xa0;小時後需要下一次保養。</translation>
    </message>
    <message>
        <source>The next client is not initialised</source>
        <translation>下一個用戶端不會被初始化</translation>
    </message>
    <message>
        <source>The next packet cannot be fetched</source>
        <translation>下一個封包無法讀取</translation>
    </message>
    <message>
        <source>The next packet is refused, as if the one before were still held</source>
        <translation>拒絕下一個封包，如同上一個仍被佔用</translation>
    </message>
    <message>
        <source>The page %1 could not be opened.</source>
        <translation>無法開啟網頁&#xa0;%1。</translation>
    </message>
    <message>
        <source>The picture as the factory set it.</source>
        <translation>原廠設定的畫面。</translation>
    </message>
    <message>
        <source>The picture goes black for about 6 minutes, and the monitor must stay on. Begin now?</source>
        <translation>畫面會變黑約&#xa0;6&#xa0;分鐘，其間請勿關閉顯示器。現在開始嗎？</translation>
    </message>
    <message>
        <source>The picture stays where it is.</source>
        <translation>畫面保持不動。</translation>
    </message>
    <message>
        <source>The program could not be restarted. It goes on as it was.</source>
        <translation>應用程式無法重新啟動，將維持原狀繼續執行。</translation>
    </message>
    <message>
        <source>The program has not registered this combination.</source>
        <translation>應用程式未註冊該組合鍵。</translation>
    </message>
    <message>
        <source>The program has this combination already.</source>
        <translation>QUORVEL 已註冊該組合鍵。</translation>
    </message>
    <message>
        <source>The program heard it.</source>
        <translation>應用程式已收到。</translation>
    </message>
    <message>
        <source>The recording could not be begun: %1</source>
        <translation>無法開始記錄：%1</translation>
    </message>
    <message>
        <source>The report is on the clipboard. It names no files, programs or users.</source>
        <translation>報告已複製到剪貼簿，其中不含檔案、應用程式或使用者的名稱。</translation>
    </message>
    <message>
        <source>The selected display is unsupported or the signal line is disconnected.</source>
        <translation>不支援所選的顯示器，或訊號纜線未連接。</translation>
    </message>
    <message>
        <source>The sharpest motion for shooters.</source>
        <translation>最清晰的動態畫面，適合射擊遊戲。</translation>
    </message>
    <message>
        <source>The sharpest movement, for the fastest games.</source>
        <translation>動態畫面最清晰，適合節奏最快的遊戲。</translation>
    </message>
    <message>
        <source>The simulated monitor that is shown here</source>
        <translation>此處顯示的模擬顯示器</translation>
    </message>
    <message>
        <source>The smallest one. Covers least.</source>
        <translation>最小，遮擋最少。</translation>
    </message>
    <message>
        <source>The socket that has a signal. For one computer, or one at a time.</source>
        <translation>自動使用有訊號的連接埠，適合一台電腦或每次一台。</translation>
    </message>
    <message>
        <source>The sound as it comes, for music and all else.</source>
        <translation>保持原聲，適合音樂及其他內容。</translation>
    </message>
    <message>
        <source>The sound of the monitor. Audio Mute: Close = sound, Open = silence. Convo = for voices.</source>
        <translation>顯示器的聲音。「靜音」開啟時沒有聲音，「對話」適合人聲。</translation>
    </message>
    <message>
        <source>The sound output cannot be listened to. It is tried again every few seconds.</source>
        <translation>無法取得音訊輸出，每隔幾秒會重試。</translation>
    </message>
    <message>
        <source>The standard of the web.</source>
        <translation>網路內容的標準色彩。</translation>
    </message>
    <message>
        <source>The system did not allow &quot;%1&quot; to be changed.</source>
        <translation>系統不允許變更「%1」。</translation>
    </message>
    <message>
        <source>The system did not move the window.</source>
        <translation>系統未移動該視窗。</translation>
    </message>
    <message>
        <source>The system does not tell which screen the window is on.</source>
        <translation>系統未告知視窗位於哪個螢幕。</translation>
    </message>
    <message>
        <source>The system&apos;s audio service is down until the button is released</source>
        <translation>放開按鈕前，系統音訊服務停止</translation>
    </message>
    <message>
        <source>The text is too long: %1 of its %2 characters fit.</source>
        <translation>文字過長：共&#xa0;%2&#xa0;個字元，只容得下前&#xa0;%1&#xa0;個。</translation>
    </message>
    <message>
        <source>The upgrade program %1 could not be started.</source>
        <translation>無法啟動升級應用程式&#xa0;%1。</translation>
    </message>
    <message>
        <source>The upgrade program is running already.</source>
        <translation>升級應用程式已在執行中。</translation>
    </message>
    <message>
        <source>The usual for web, office, photos and most games.</source>
        <translation>網頁、辦公、相片和大多數遊戲的通用值。</translation>
    </message>
    <message>
        <source>The usual light.</source>
        <translation>一般的燈光。</translation>
    </message>
    <message>
        <source>The usual white for web, photos and films.</source>
        <translation>網頁、相片和電影的通用白色。</translation>
    </message>
    <message>
        <source>The version of your monitor&apos;s firmware.</source>
        <translation>您的顯示器的韌體版本。</translation>
    </message>
    <message>
        <source>The white of printed paper.</source>
        <translation>印刷紙張的白色。</translation>
    </message>
    <message>
        <source>The whole belt comes and goes slowly.</source>
        <translation>整條燈帶緩緩明暗。</translation>
    </message>
    <message>
        <source>The whole belt flashes. Hard to bear beside work.</source>
        <translation>整條燈帶閃爍，不適合工作時使用。</translation>
    </message>
    <message>
        <source>The window cannot be resized.</source>
        <translation>該視窗無法調整大小。</translation>
    </message>
    <message>
        <source>The window fills the whole screen: end its full screen first.</source>
        <translation>該視窗處於全螢幕狀態：請先結束全螢幕。</translation>
    </message>
    <message>
        <source>The window is minimised.</source>
        <translation>該視窗已最小化。</translation>
    </message>
    <message>
        <source>The window was not put into a zone, so it has no old place.</source>
        <translation>該視窗未放入過區域，因此沒有原位置。</translation>
    </message>
    <message>
        <source>The window&apos;s program does not answer.</source>
        <translation>該視窗的應用程式沒有回應。</translation>
    </message>
    <message>
        <source>The window&apos;s program has more rights than this one and cannot be moved.</source>
        <translation>該視窗的應用程式權限高於本工具，無法移動。</translation>
    </message>
    <message>
        <source>The zone is too small to be cut.</source>
        <translation>此區域太小，無法再分割。</translation>
    </message>
    <message>
        <source>There are as many layouts as there can be. Delete one first.</source>
        <translation>版面數量已達上限。請先刪除一個。</translation>
    </message>
    <message>
        <source>There is no sound output until the button is released</source>
        <translation>放開按鈕前，沒有音訊輸出</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>檔案不存在。</translation>
    </message>
    <message>
        <source>There is no text yet.</source>
        <translation>還沒有文字。</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>沒有可重做的動作。</translation>
    </message>
    <message>
        <source>There is nothing to set here yet.</source>
        <translation>這裡暫時沒有可設定的內容。</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>沒有可復原的動作。</translation>
    </message>
    <message>
        <source>Thirds</source>
        <translation>三等分</translation>
    </message>
    <message>
        <source>This function has its row already.</source>
        <translation>該功能已在清單中。</translation>
    </message>
    <message>
        <source>This is the light of the mode &quot;Eye Care&quot;.</source>
        <translation>這是「護眼」模式的燈光。</translation>
    </message>
    <message>
        <source>This layout stays as it is. &quot;New layout&quot; makes one of your own of it.</source>
        <translation>此版面無法變更。「新增版面」會以它為基礎建立您自己的版面。</translation>
    </message>
    <message>
        <source>This monitor</source>
        <translation>此顯示器</translation>
    </message>
    <message>
        <source>This monitor does not have these functions.</source>
        <translation>此顯示器沒有這些功能。</translation>
    </message>
    <message>
        <source>This monitor may not have it; else read everything once.</source>
        <translation>此顯示器可能沒有該功能；否則請全部讀取一次。</translation>
    </message>
    <message>
        <source>This slider counts while Color Temperature is Night View C.T.</source>
        <translation>色溫選為「夜間色溫」時，此滑桿才有作用。</translation>
    </message>
    <message>
        <source>This tool says on the desktop that care is due: never over a program that fills the screen.</source>
        <translation>需要保養時，由本工具在桌面上提示；絕不遮住全螢幕的應用程式。</translation>
    </message>
    <message>
        <source>Three columns and three rows.</source>
        <translation>三欄三列。</translation>
    </message>
    <message>
        <source>Three columns and two rows.</source>
        <translation>三欄兩列。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Time to rest your eyes for a while.</source>
        <translation>該讓眼睛休息一下了。</translation>
    </message>
    <message>
        <source>Time, read or write, code, value and what became of it</source>
        <translation>時間、讀取或寫入、代碼、值及結果</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>定時</translation>
    </message>
    <message>
        <source>To know how long a round has gone on without looking away.</source>
        <translation>視線不離畫面，即可了解一局已進行多久。</translation>
    </message>
    <message>
        <source>To see how the reminder looks.</source>
        <translation>用於查看提醒的樣子。</translation>
    </message>
    <message>
        <source>To see whether a game runs as smoothly as the monitor could show it.</source>
        <translation>檢視遊戲是否達到顯示器所能呈現的流暢度。</translation>
    </message>
    <message>
        <source>To stop in time.</source>
        <translation>提醒您適時停止。</translation>
    </message>
    <message>
        <source>Today&apos;s automatic changes of this monitor are used up (%1). They go on tomorrow; what you set yourself is not limited.</source>
        <translation>今天對此顯示器的自動變更次數已用完（%1&#xa0;次），明天繼續。您自己的設定不受限制。</translation>
    </message>
    <message>
        <source>Tool Settings</source>
        <translation>工具設定</translation>
    </message>
    <message>
        <source>Tool Version: </source>
        <translation>工具版本：</translation>
    </message>
    <message>
        <source>Tool language settings</source>
        <translation>工具語言設定</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>頂部</translation>
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
        <translation>極速</translation>
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
        <translation>三殺</translation>
    </message>
    <message>
        <source>True colours for design work.</source>
        <translation>色彩真實，適合設計工作。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試一次</translation>
    </message>
    <message>
        <source>Try again; its scene or another setting may forbid it.</source>
        <translation>請重試；目前情境或其他設定可能不允許。</translation>
    </message>
    <message>
        <source>Two columns and two rows.</source>
        <translation>兩欄兩列。</translation>
    </message>
    <message>
        <source>Two tones</source>
        <translation>雙音</translation>
    </message>
    <message>
        <source>Type the combination here, then press it on the whole desktop</source>
        <translation>在此輸入組合鍵，然後在整個桌面上按下</translation>
    </message>
    <message>
        <source>Type the text for the matrix.</source>
        <translation>請輸入要在矩陣上顯示的文字。</translation>
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
        <translation>USB 供電</translation>
    </message>
    <message>
        <source>USB Switch</source>
        <translation>USB 切換</translation>
    </message>
    <message>
        <source>Ull-Level1</source>
        <translation>Ull 等級&#xa0;1</translation>
    </message>
    <message>
        <source>Ull-Level2</source>
        <translation>Ull 等級&#xa0;2</translation>
    </message>
    <message>
        <source>Ull-Level3</source>
        <translation>Ull 等級&#xa0;3</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>拔出纜線</translation>
    </message>
    <message>
        <source>Unplugged</source>
        <translation>已拔出</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>升級</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>上傳</translation>
    </message>
    <message>
        <source>Uploaded for another form of the matrix.</source>
        <translation>為另一種矩陣形狀寫入。</translation>
    </message>
    <message>
        <source>Use and care of the last five weeks</source>
        <translation>最近五週的使用與保養</translation>
    </message>
    <message>
        <source>User1</source>
        <translation>使用者&#xa0;1</translation>
    </message>
    <message>
        <source>User1 R G B</source>
        <translation>使用者&#xa0;1 R G B</translation>
    </message>
    <message>
        <source>User2</source>
        <translation>使用者&#xa0;2</translation>
    </message>
    <message>
        <source>User2 R G B</source>
        <translation>使用者&#xa0;2 R G B</translation>
    </message>
    <message>
        <source>User3</source>
        <translation>使用者&#xa0;3</translation>
    </message>
    <message>
        <source>User3 R G B</source>
        <translation>使用者&#xa0;3 R G B</translation>
    </message>
    <message>
        <source>UserB</source>
        <translation>藍(B)</translation>
    </message>
    <message>
        <source>UserG</source>
        <translation>綠(G)</translation>
    </message>
    <message>
        <source>UserR</source>
        <translation>紅(R)</translation>
    </message>
    <message>
        <source>V-Position</source>
        <translation>垂直位置</translation>
    </message>
    <message>
        <source>Value before</source>
        <translation>上一個值</translation>
    </message>
    <message>
        <source>Very bright middle tones: shows what hides in the dark.</source>
        <translation>中間調非常亮：能看清暗處的內容。</translation>
    </message>
    <message>
        <source>Very cool, bluish white, as on old screens.</source>
        <translation>非常冷的偏藍白色，如同舊式螢幕。</translation>
    </message>
    <message>
        <source>Victory</source>
        <translation>勝利</translation>
    </message>
    <message>
        <source>Visibly darker, for long days with the same windows.</source>
        <translation>明顯變暗，適合整天使用相同的視窗。</translation>
    </message>
    <message>
        <source>Vivid colours for animation.</source>
        <translation>色彩鮮豔，適合動畫。</translation>
    </message>
    <message>
        <source>Voices come forward, for talks and conferences.</source>
        <translation>突顯人聲，適合通話和會議。</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Waits long before it dims: good for reading.</source>
        <translation>等待較久才變暗：適合閱讀。</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>暖</translation>
    </message>
    <message>
        <source>Warm white for the evening. The slider below says how warm.</source>
        <translation>適合晚間的暖白。下方的滑桿決定暖度。</translation>
    </message>
    <message>
        <source>Warm white, as paper under the lamps of a print shop.</source>
        <translation>暖白，如同印刷廠燈光下的紙張。</translation>
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
        <translation>網頁(sRGB)</translation>
    </message>
    <message>
        <source>What goes wrong</source>
        <translation>故障模擬</translation>
    </message>
    <message>
        <source>What is asked and answered is recorded in %1</source>
        <translation>正在將要求與回應記錄到&#xa0;%1</translation>
    </message>
    <message>
        <source>What it looks like</source>
        <translation>效果預覽</translation>
    </message>
    <message>
        <source>What most visitors of a page see.</source>
        <translation>多數網頁訪客看到的色彩。</translation>
    </message>
    <message>
        <source>What moves looks a little sharper. Good for films.</source>
        <translation>移動物體略微清晰，適合看電影。</translation>
    </message>
    <message>
        <source>What moves looks clearly sharper. Good for sport.</source>
        <translation>移動物體明顯清晰，適合看體育節目。</translation>
    </message>
    <message>
        <source>What plays</source>
        <translation>播放內容</translation>
    </message>
    <message>
        <source>Wheel: one step · Tab, arrows · Esc closes</source>
        <translation>滾輪：一格一步 · Tab 與方向鍵 · Esc 關閉</translation>
    </message>
    <message>
        <source>When the lighting goes out by itself, and whether it stays on in standby.</source>
        <translation>燈光何時自動熄滅，以及待機時是否保持亮燈。</translation>
    </message>
    <message>
        <source>Where others pass by, or a hand easily touches the monitor&apos;s buttons.</source>
        <translation>適合有他人經過，或容易誤觸顯示器按鍵的場合。</translation>
    </message>
    <message>
        <source>Which cable the monitor&apos;s USB sockets go to, and how fast the picture comes through DP or Type-C.</source>
        <translation>顯示器的 USB 連接埠連到哪條纜線，以及 DP 或 Type-C 傳輸畫面的速度。</translation>
    </message>
    <message>
        <source>Which events of a game the matrix celebrates, how often and how bright.</source>
        <translation>矩陣為哪些遊戲事件慶祝，以及間隔和亮度。</translation>
    </message>
    <message>
        <source>Which of the uploaded animations the matrix plays.</source>
        <translation>選擇矩陣播放哪些已寫入的動畫。</translation>
    </message>
    <message>
        <source>Which of your monitors this tool sets.</source>
        <translation>本工具設定您的哪一台顯示器。</translation>
    </message>
    <message>
        <source>Which socket the picture comes from. Auto = the one that has a signal.</source>
        <translation>畫面來自哪個連接埠。「自動」選擇有訊號的連接埠。</translation>
    </message>
    <message>
        <source>Which way round the light runs, as seen from behind.</source>
        <translation>燈光轉動的方向（從背後看）。</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>寬度</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>視窗</translation>
    </message>
    <message>
        <source>With the factory parameters</source>
        <translation>原廠參數</translation>
    </message>
    <message>
        <source>With your own parameters</source>
        <translation>自訂參數</translation>
    </message>
    <message>
        <source>Write Animate</source>
        <translation>寫入動畫</translation>
    </message>
    <message>
        <source>Write Data</source>
        <translation>寫入資料</translation>
    </message>
    <message>
        <source>Written today</source>
        <translation>今日寫入</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黃色</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Your own picture. Changes are sent to the monitor as you make them.</source>
        <translation>您的自訂畫面，變更會即時傳送到顯示器。</translation>
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
        <translation>區域&#xa0;%1/%2</translation>
    </message>
    <message>
        <source>Zone before</source>
        <translation>上一個區域</translation>
    </message>
    <message>
        <source>Zones for %1</source>
        <translation>%1&#xa0;的區域</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>放大倍率</translation>
    </message>
    <message>
        <source>adjusted</source>
        <translation>已調整</translation>
    </message>
    <message>
        <source>all succeeded</source>
        <translation>全部成功</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>已連線</translation>
    </message>
    <message>
        <source>deaf</source>
        <translation>無回應</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>韌體&#xa0;%1</translation>
    </message>
    <message>
        <source>garbled</source>
        <translation>資料錯亂</translation>
    </message>
    <message>
        <source>https://</source>
        <translation>https://</translation>
    </message>
    <message>
        <source>lamp off</source>
        <translation>燈已關</translation>
    </message>
    <message>
        <source>live</source>
        <translation>即時</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>已遺失</translation>
    </message>
    <message>
        <source>made %1</source>
        <translation>%1&#xa0;年製造</translation>
    </message>
    <message>
        <source>made %1, week %2</source>
        <translation>%1&#xa0;年第&#xa0;%2&#xa0;週製造</translation>
    </message>
    <message>
        <source>mode %1</source>
        <translation>模式&#xa0;%1</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>無回應</translation>
    </message>
    <message>
        <source>no monitor</source>
        <translation>無顯示器</translation>
    </message>
    <message>
        <source>none needed</source>
        <translation>無需重試</translation>
    </message>
    <message>
        <source>not a WAV file of 16-bit or floating-point samples</source>
        <translation>不是&#xa0;16&#xa0;位元或浮點取樣的 WAV 檔案</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>無</translation>
    </message>
    <message>
        <source>nothing asked yet</source>
        <translation>尚無要求</translation>
    </message>
    <message>
        <source>now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>off</source>
        <translation>滅</translation>
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
        <translation>開啟</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>已拒絕</translation>
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
        <translation>sRGB 三原色，伽瑪&#xa0;2.2。</translation>
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
        <translation>序號&#xa0;%1</translation>
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
        <translation>非預期</translation>
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
        <translation>已上傳內容</translation>
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
        <translation>磁碟機</translation>
    </message>
    <message>
        <source>File Folder</source>
        <comment>Match Windows Explorer</comment>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <comment>All other platforms</comment>
        <translation>捷徑</translation>
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
        <translation>全選(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>遞增(&amp;S)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>遞減(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QColorDialog</name>
    <message>
        <source>&amp;Add to Custom Colors</source>
        <translation>新增至自訂色彩(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Basic colors</source>
        <translation>基本色彩(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Custom colors</source>
        <translation>自訂色彩(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>綠(&amp;G)：</translation>
    </message>
    <message>
        <source>&amp;HTML:</source>
        <translation>&amp;HTML：</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Color</source>
        <translation>挑選螢幕色彩(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Red:</source>
        <translation>紅(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Sat:</source>
        <translation>飽和度(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Val:</source>
        <translation>明度(&amp;V)：</translation>
    </message>
    <message>
        <source>A&amp;lpha channel:</source>
        <translation>透明色版(&amp;L)：</translation>
    </message>
    <message>
        <source>Bl&amp;ue:</source>
        <translation>藍(&amp;U)：</translation>
    </message>
    <message>
        <source>Cursor at %1, %2
Press ESC to cancel</source>
        <translation>游標位於&#xa0;%1, %2
按 Esc 取消</translation>
    </message>
    <message>
        <source>Hu&amp;e:</source>
        <translation>色相(&amp;E)：</translation>
    </message>
    <message>
        <source>Select Color</source>
        <translation>選擇色彩</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
找不到該資料夾。
請檢查資料夾名稱是否正確。</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
找不到該檔案。
請檢查檔案名稱是否正確。</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1&#xa0;已存在。
要取代它嗎？</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>選擇(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>刪除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新增資料夾(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開啟(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重新命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>儲存(&amp;S)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>「%1」已防寫保護。
仍要刪除它嗎？</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有檔案 (*)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有檔案 (*)</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>確定要刪除「%1」嗎？</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>切換到詳細資料檢視</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>切換到清單檢視</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>無法刪除資料夾。</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新增資料夾</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>新增資料夾</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>詳細資料</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>資料夾：</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>檔案名稱(&amp;N)：</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>檔案類型：</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前進</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>前進</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>移至上一層資料夾</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>清單</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>位置與書籤清單</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>位置：</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新增資料夾</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>上一層資料夾</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>最近的位置</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>顯示 </translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>顯示隱藏檔案(&amp;H)</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>側邊欄</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>電腦</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>修改日期</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>本機</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Type</source>
        <comment>All other platforms</comment>
        <translation>類型</translation>
    </message>
</context>
<context>
    <name>QKeySequenceEdit</name>
    <message>
        <source>Press shortcut</source>
        <translation>請按快速鍵</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Copy</source>
        <translation>複製(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼上(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>復原(&amp;U)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪下(&amp;T)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
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
        <translation>關閉</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Bottom</source>
        <translation>底端</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左端</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>下一頁</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>左一頁</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>右一頁</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>上一頁</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右端</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>向下捲動</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>捲動到此處</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>向左捲動</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>向右捲動</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>向上捲動</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>頂端</translation>
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
        <translation>向左捲動</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>向右捲動</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>複製(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼上(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>復原(&amp;U)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪下(&amp;T)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
</context>
</TS>
