<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>         Disable</source>
        <translation>         オフ</translation>
    </message>
    <message>
        <source>         Enable</source>
        <translation>         オン</translation>
    </message>
    <message>
        <source>        Custom</source>
        <translation>        カスタム</translation>
    </message>
    <message>
        <source>        Default</source>
        <translation>        デフォルト</translation>
    </message>
    <message>
        <source> already enabled!</source>
        <translation> は既に有効です！</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 %, from low to high</source>
        <translation>%1 %（低音から高音へ）</translation>
    </message>
    <message>
        <source>%1 cannot be written. Nothing was changed.</source>
        <translation>%1&#xa0;に書き込めません。変更はありません。</translation>
    </message>
    <message>
        <source>%1 cannot be written: what is set here lasts until the program ends.</source>
        <translation>%1&#xa0;に書き込めません。ここでの設定はアプリの終了まで有効です。</translation>
    </message>
    <message>
        <source>%1 does not have &quot;%2&quot;.</source>
        <translation>%1&#xa0;には「%2」がありません。</translation>
    </message>
    <message>
        <source>%1 frames a second</source>
        <translation>毎秒&#xa0;%1&#xa0;フレーム</translation>
    </message>
    <message>
        <source>%1 goes to the level before.</source>
        <translation>%1: 前のレベル</translation>
    </message>
    <message>
        <source>%1 goes to the next level.</source>
        <translation>%1: 次のレベル</translation>
    </message>
    <message>
        <source>%1 has no OLED panel to care for.</source>
        <translation>%1&#xa0;にはケアの対象となる OLED パネルがありません。</translation>
    </message>
    <message>
        <source>%1 has no game functions.</source>
        <translation>%1&#xa0;にはゲーム機能がありません。</translation>
    </message>
    <message>
        <source>%1 holds no saved drawing. It stays as it is until you save.</source>
        <translation>%1&#xa0;には保存された描画がありません。保存するまでファイルはそのまま残ります。</translation>
    </message>
    <message>
        <source>%1 hours of use counted</source>
        <translation>使用時間の累計: %1&#xa0;時間</translation>
    </message>
    <message>
        <source>%1 hours of use since the last care</source>
        <translation>前回のケアから&#xa0;%1&#xa0;時間使用</translation>
    </message>
    <message>
        <source>%1 in all, %2 by itself today</source>
        <translation>計&#xa0;%1&#xa0;回、本日自動&#xa0;%2&#xa0;回</translation>
    </message>
    <message>
        <source>%1 is in the list already.</source>
        <translation>%1&#xa0;は既にリストにあります。</translation>
    </message>
    <message>
        <source>%1 is taken by another program or function and does nothing here.</source>
        <translation>%1&#xa0;は他のアプリまたは機能が使用中のため、ここでは動作しません。</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;分</translation>
    </message>
    <message>
        <source>%1 moves it to the corner before.</source>
        <translation>%1: 前の隅へ移動</translation>
    </message>
    <message>
        <source>%1 moves it to the next corner.</source>
        <translation>%1: 次の隅へ移動</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1&#xa0;ミリ秒</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1（最大&#xa0;%2）</translation>
    </message>
    <message>
        <source>%1 of %2 lost</source>
        <translation>%2&#xa0;回中&#xa0;%1&#xa0;回失敗</translation>
    </message>
    <message>
        <source>%1 of %2 values were told, in %3 s.</source>
        <translation>%2&#xa0;個の値のうち&#xa0;%1&#xa0;個を&#xa0;%3&#xa0;秒で読み取りました。</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1&#xa0;ピクセル</translation>
    </message>
    <message>
        <source>%1 requests are recorded in %2</source>
        <translation>%1&#xa0;件の要求を&#xa0;%2&#xa0;に記録しました</translation>
    </message>
    <message>
        <source>%1 rows, %2 cells, %3 on</source>
        <translation>%1&#xa0;行、%2&#xa0;セル、点灯&#xa0;%3</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;秒</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>残り&#xa0;%1&#xa0;秒</translation>
    </message>
    <message>
        <source>%1 steps the colour.</source>
        <translation>%1: 色を切り替え</translation>
    </message>
    <message>
        <source>%1 steps the corner.</source>
        <translation>%1: 隅を切り替え</translation>
    </message>
    <message>
        <source>%1 steps the length.</source>
        <translation>%1: 長さを切り替え</translation>
    </message>
    <message>
        <source>%1 steps the shape.</source>
        <translation>%1: 形を切り替え</translation>
    </message>
    <message>
        <source>%1 steps the time.</source>
        <translation>%1: 時間を切り替え</translation>
    </message>
    <message>
        <source>%1 succeeded</source>
        <translation>%1&#xa0;回成功</translation>
    </message>
    <message>
        <source>%1 switches it off.</source>
        <translation>%1: オフにする</translation>
    </message>
    <message>
        <source>%1 switches it on.</source>
        <translation>%1: オンにする</translation>
    </message>
    <message>
        <source>%1 was changed to &quot;%2&quot;.</source>
        <translation>「%1」を「%2」に変更しました。</translation>
    </message>
    <message>
        <source>%1 was not taken</source>
        <translation>「%1」を設定できません</translation>
    </message>
    <message>
        <source>%1 was not told</source>
        <translation>「%1」を読み取れません</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 · protocol faults: %2 · open handles: %3</source>
        <translation>%1 · プロトコルエラー: %2 · 開いているハンドル: %3</translation>
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
        <translation>%1、チャンク&#xa0;%2 / %3</translation>
    </message>
    <message>
        <source>%1, frames: %2</source>
        <translation>%1、フレーム数: %2</translation>
    </message>
    <message>
        <source>%1. The window keeps a size of its own.</source>
        <translation>%1。ウィンドウは独自のサイズのままです。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>1 Hour</source>
        <translation>1&#xa0;時間</translation>
    </message>
    <message>
        <source>1.5 Hour</source>
        <translation>1.5&#xa0;時間</translation>
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
        <translation>10&#xa0;分前</translation>
    </message>
    <message>
        <source>12 Hour</source>
        <translation>12&#xa0;時間</translation>
    </message>
    <message>
        <source>15 min</source>
        <translation>15&#xa0;分</translation>
    </message>
    <message>
        <source>2 Hour</source>
        <translation>2&#xa0;時間</translation>
    </message>
    <message>
        <source>2 Zone Rhythm</source>
        <translation>2&#xa0;ゾーン連動</translation>
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
        <translation>2.5&#xa0;時間</translation>
    </message>
    <message>
        <source>2.6</source>
        <translation>2.6</translation>
    </message>
    <message>
        <source>24 Hour</source>
        <translation>24&#xa0;時間</translation>
    </message>
    <message>
        <source>3 Hour</source>
        <translation>3&#xa0;時間</translation>
    </message>
    <message>
        <source>3.5 Hour</source>
        <translation>3.5&#xa0;時間</translation>
    </message>
    <message>
        <source>30 min</source>
        <translation>30&#xa0;分</translation>
    </message>
    <message>
        <source>30s</source>
        <translation>30&#xa0;秒</translation>
    </message>
    <message>
        <source>4 Hour</source>
        <translation>4&#xa0;時間</translation>
    </message>
    <message>
        <source>40 min</source>
        <translation>40&#xa0;分</translation>
    </message>
    <message>
        <source>5.4G</source>
        <translation>5.4G</translation>
    </message>
    <message>
        <source>50 min</source>
        <translation>50&#xa0;分</translation>
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
        <translation>60&#xa0;分</translation>
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
        <translation>8&#xa0;時間</translation>
    </message>
    <message>
        <source>8.1G</source>
        <translation>8.1G</translation>
    </message>
    <message>
        <source>90 min</source>
        <translation>90&#xa0;分</translation>
    </message>
    <message>
        <source>9300K</source>
        <translation>9300K</translation>
    </message>
    <message>
        <source>&lt;font color=white&gt;Getting Disp Dev Infor...&lt;/font&gt;</source>
        <translation>&lt;font color=white&gt;ディスプレイ情報を取得しています...&lt;/font&gt;</translation>
    </message>
    <message>
        <source>A WAV file</source>
        <translation>WAV ファイル</translation>
    </message>
    <message>
        <source>A balanced picture for every day.</source>
        <translation>日常使いに適したバランスのよい画質です。</translation>
    </message>
    <message>
        <source>A calm white on the wall, for long evenings at the screen.</source>
        <translation>壁を照らす落ち着いた白です。夜に長く画面を見るときに。</translation>
    </message>
    <message>
        <source>A circle, for what is in the middle.</source>
        <translation>円。中央の主題に向いています。</translation>
    </message>
    <message>
        <source>A colour that can be seen to change is sent, at most one a second.</source>
        <translation>見てわかる色の変化だけを、1&#xa0;秒に&#xa0;1&#xa0;回まで送ります。</translation>
    </message>
    <message>
        <source>A colour that few games have themselves.</source>
        <translation>ゲームの中にはあまりない色です。</translation>
    </message>
    <message>
        <source>A crosshair that takes the colour that stands out and opens while the picture moves.</source>
        <translation>目立つ色になり、画面が動くと開く照準です。</translation>
    </message>
    <message>
        <source>A dark rim: the eye stays in the middle.</source>
        <translation>縁が暗くなり、視線が中央にとどまります。</translation>
    </message>
    <message>
        <source>A diagonal and the lines that meet it: for pictures with a slant.</source>
        <translation>対角線とそれに交わる線。斜めの構図に向いています。</translation>
    </message>
    <message>
        <source>A dim picture for dark rooms.</source>
        <translation>暗い部屋に適した明るさを抑えた画質です。</translation>
    </message>
    <message>
        <source>A faint light, for a dark room.</source>
        <translation>暗い部屋向けの淡い光です。</translation>
    </message>
    <message>
        <source>A light runs around the ring.</source>
        <translation>光が輪に沿って走ります。</translation>
    </message>
    <message>
        <source>A line of text that the matrix shows, standing or scrolling.</source>
        <translation>マトリクスに静止またはスクロールで表示する&#xa0;1&#xa0;行のテキスト。</translation>
    </message>
    <message>
        <source>A little above the middle, as games need it that look over a shoulder.</source>
        <translation>中央より少し上です。肩越し視点のゲーム向けです。</translation>
    </message>
    <message>
        <source>A little below the middle, for a view that is tilted up.</source>
        <translation>中央より少し下です。視点が上を向くゲーム向けです。</translation>
    </message>
    <message>
        <source>A little cooler than usual.</source>
        <translation>標準より少し冷たい白です。</translation>
    </message>
    <message>
        <source>A little darker, and a little cheaper.</source>
        <translation>少し暗く、少し省電力です。</translation>
    </message>
    <message>
        <source>A little darker: hardly to be seen, for normal work.</source>
        <translation>わずかに暗くします。ほとんど気づかないので、普段の作業に向いています。</translation>
    </message>
    <message>
        <source>A little faster, without side effects.</source>
        <translation>少しだけ速くなります。副作用はありません。</translation>
    </message>
    <message>
        <source>A little warm, as light at noon.</source>
        <translation>正午の光のような、少し暖かい白です。</translation>
    </message>
    <message>
        <source>A mixture of your own: set its red, green and blue with the sliders below.</source>
        <translation>自分だけの配合です。赤・緑・青を下のスライダーで設定します。</translation>
    </message>
    <message>
        <source>A point of light runs along the belt, like a bead.</source>
        <translation>光の粒がライトバーに沿って走ります。</translation>
    </message>
    <message>
        <source>A protractor around the middle, to measure angles.</source>
        <translation>中央に分度器を表示し、角度を測れます。</translation>
    </message>
    <message>
        <source>A quarter of the screen&apos;s width: hides least of the first input.</source>
        <translation>画面の幅の&#xa0;4&#xa0;分の&#xa0;1。1&#xa0;つ目の入力を隠す部分が最も少なくなります。</translation>
    </message>
    <message>
        <source>A shade at the rim that is hardly noticed.</source>
        <translation>ほとんど気づかない程度に縁が暗くなります。</translation>
    </message>
    <message>
        <source>A sheet as large as you set it above.</source>
        <translation>上で設定した大きさの用紙です。</translation>
    </message>
    <message>
        <source>A sheet of 125 × 176 mm, as of a paperback.</source>
        <translation>125 × 176 mm の用紙。文庫ほどの大きさです。</translation>
    </message>
    <message>
        <source>A sheet of 176 × 250 mm, for books and brochures.</source>
        <translation>176 × 250 mm の用紙。本や冊子に向いています。</translation>
    </message>
    <message>
        <source>A sheet of 210 × 297 mm, upright, in the middle of the screen.</source>
        <translation>210 × 297 mm の用紙を、画面中央に縦置きで示します。</translation>
    </message>
    <message>
        <source>A soft page for long texts.</source>
        <translation>長文を読むのに適したやわらかな画質です。</translation>
    </message>
    <message>
        <source>A sweep</source>
        <translation>スイープ</translation>
    </message>
    <message>
        <source>A third of the screen&apos;s width.</source>
        <translation>画面の幅の&#xa0;3&#xa0;分の&#xa0;1。</translation>
    </message>
    <message>
        <source>A tone</source>
        <translation>単音</translation>
    </message>
    <message>
        <source>A very dark rim, for games that play in the middle.</source>
        <translation>縁がとても暗くなります。中央で展開するゲーム向けです。</translation>
    </message>
    <message>
        <source>A white behind the screen that spares the eyes. Warm in the evening, cold by day.</source>
        <translation>画面の後ろの目にやさしい白い光です。夜は暖色、昼は寒色が適しています。</translation>
    </message>
    <message>
        <source>A wide gamut for photographs.</source>
        <translation>写真に適した広い色域です。</translation>
    </message>
    <message>
        <source>A wide gamut under a D50 light.</source>
        <translation>D50&#xa0;光源での広い色域です。</translation>
    </message>
    <message>
        <source>AI Dual Mode</source>
        <translation>AI デュアルモード</translation>
    </message>
    <message>
        <source>Accessory</source>
        <translation>アクセサリ</translation>
    </message>
    <message>
        <source>Adaptive-Sync</source>
        <translation>Adaptive-Sync</translation>
    </message>
    <message>
        <source>Add Frame</source>
        <translation>フレーム追加</translation>
    </message>
    <message>
        <source>Add Scence</source>
        <translation>シーンを追加</translation>
    </message>
    <message>
        <source>Add a frame first.</source>
        <translation>先にフレームを追加してください。</translation>
    </message>
    <message>
        <source>Adobe</source>
        <translation>Adobe</translation>
    </message>
    <message>
        <source>Adobe Mode</source>
        <translation>Adobe モード</translation>
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
        <translation>何時間使ったら次のケアをするかを決めます。</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>位置合わせ</translation>
    </message>
    <message>
        <source>Alignment Aid</source>
        <translation>位置合わせ補助</translation>
    </message>
    <message>
        <source>Alignment_4</source>
        <translation>4&#xa0;分割</translation>
    </message>
    <message>
        <source>Alignment_6</source>
        <translation>6&#xa0;分割</translation>
    </message>
    <message>
        <source>Alignment_9</source>
        <translation>9&#xa0;分割</translation>
    </message>
    <message>
        <source>All colours at once, which turn around the ring.</source>
        <translation>すべての色が同時に現れ、輪に沿って回ります。</translation>
    </message>
    <message>
        <source>All file (*.*)</source>
        <translation>すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>All lamps come and go slowly. The quietest effect.</source>
        <translation>すべてのライトがゆっくり明滅します。最も静かなエフェクトです。</translation>
    </message>
    <message>
        <source>All lamps follow sound or screen in one colour.</source>
        <translation>すべてのライトが&#xa0;1&#xa0;色で音や画面に合わせます。</translation>
    </message>
    <message>
        <source>All shortcuts rest while the switch above is off.</source>
        <translation>上のスイッチがオフの間、ショートカットキーはすべて働きません。</translation>
    </message>
    <message>
        <source>Always the opposite of what lies behind it.</source>
        <translation>常に背景の反対の色になります。</translation>
    </message>
    <message>
        <source>Always this socket. The screen stays dark while nothing comes from there.</source>
        <translation>常にこの端子を使います。信号がない間、画面は暗いままです。</translation>
    </message>
    <message>
        <source>American broadcasting primaries.</source>
        <translation>米国の放送規格の三原色です。</translation>
    </message>
    <message>
        <source>Angle Ruler</source>
        <translation>分度器</translation>
    </message>
    <message>
        <source>Angle close</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Animate</source>
        <translation>アニメーション</translation>
    </message>
    <message>
        <source>Animate Mode</source>
        <translation>アニメーション</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>アニメーション</translation>
    </message>
    <message>
        <source>Another device becomes the default one</source>
        <translation>別のデバイスがデフォルトになります</translation>
    </message>
    <message>
        <source>Another program registers the combination first</source>
        <translation>別のアプリがこの組み合わせを先に登録します</translation>
    </message>
    <message>
        <source>Another program…</source>
        <translation>別のアプリ…</translation>
    </message>
    <message>
        <source>Answer times, last ten minutes</source>
        <translation>直近&#xa0;10&#xa0;分間の応答時間</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>応答率</translation>
    </message>
    <message>
        <source>Application is already running</source>
        <translation>アプリは既に起動しています</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Arrange the window</source>
        <translation>ウィンドウを配置</translation>
    </message>
    <message>
        <source>Arrangement of the windows</source>
        <translation>ウィンドウの配置</translation>
    </message>
    <message>
        <source>Art Design</source>
        <translation>アートデザイン</translation>
    </message>
    <message>
        <source>Art Design Mode</source>
        <translation>アートデザイン</translation>
    </message>
    <message>
        <source>As Auto, with dark parts that stay readable.</source>
        <translation>「自動」と同じで、暗い部分も見やすく保ちます。</translation>
    </message>
    <message>
        <source>As Auto, with deep shadows as a film wants them.</source>
        <translation>「自動」と同じで、映画らしい深い影にします。</translation>
    </message>
    <message>
        <source>As bright as you set it.</source>
        <translation>設定した明るさのままです。</translation>
    </message>
    <message>
        <source>As fast as it goes. Bright rims may follow what moves.</source>
        <translation>最速です。動くものに明るい縁が付くことがあります。</translation>
    </message>
    <message>
        <source>As saved: %1 cells a frame, not 1050.</source>
        <translation>保存と同じ&#xa0;%1&#xa0;セル/フレーム(通常&#xa0;1050)</translation>
    </message>
    <message>
        <source>Asked again and told; nothing to do.</source>
        <translation>再読み取りできました。操作は不要です。</translation>
    </message>
    <message>
        <source>Asked again; nothing to do.</source>
        <translation>読み直しました。操作は不要です。</translation>
    </message>
    <message>
        <source>Asleep</source>
        <translation>スリープ中</translation>
    </message>
    <message>
        <source>Assist</source>
        <translation>アシスト</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>音声モード</translation>
    </message>
    <message>
        <source>Audio Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>Audio Settings</source>
        <translation>音声設定</translation>
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
        <translation>自動変更(1&#xa0;日)</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Back at its old place</source>
        <translation>元の位置に戻しました</translation>
    </message>
    <message>
        <source>Background running</source>
        <translation>バックグラウンドで実行中</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>バー</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>基本設定</translation>
    </message>
    <message>
        <source>Black Level</source>
        <translation>黒レベル</translation>
    </message>
    <message>
        <source>Black and white, like paper.</source>
        <translation>紙のような白黒表示です。</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
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
        <translation>境界</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>呼吸</translation>
    </message>
    <message>
        <source>Bright middle tones, for a bright room.</source>
        <translation>中間の階調が明るめです。明るい部屋に向いています。</translation>
    </message>
    <message>
        <source>Bright on nearly everything but grass.</source>
        <translation>草の上を除き、ほとんどの場面で明るく見えます。</translation>
    </message>
    <message>
        <source>Bright parts shine when the signal has the range for it.</source>
        <translation>信号が対応していれば、明るい部分が輝きます。</translation>
    </message>
    <message>
        <source>Brightens dark scenes. Close = off, Level1 and Level2 = always, Auto-L1 and Auto-L2 = when needed.</source>
        <translation>暗い場面を明るくします。「レベル」は常に、「自動」は映像に応じて働きます。</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>輝度</translation>
    </message>
    <message>
        <source>Bring to the front</source>
        <translation>前面に出す</translation>
    </message>
    <message>
        <source>Brings the monitor&apos;s firmware up to date. Leave the monitor switched on until it has finished.</source>
        <translation>ファームウェアの更新アプリを起動します。完了するまでモニターの電源を切らないでください。</translation>
    </message>
    <message>
        <source>Buffer error</source>
        <translation>バッファエラー</translation>
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
        <translation>CAD/CAM モード</translation>
    </message>
    <message>
        <source>CEC</source>
        <translation>CEC</translation>
    </message>
    <message>
        <source>CR Enhance</source>
        <translation>コントラスト強調</translation>
    </message>
    <message>
        <source>CSV file (*.csv);</source>
        <translation>CSV ファイル (*.csv);</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルしました。</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was changed.</source>
        <translation>キャンセルしました。何も変更されていません。</translation>
    </message>
    <message>
        <source>Care Content</source>
        <translation>ケア項目</translation>
    </message>
    <message>
        <source>Care Due</source>
        <translation>ケアの時期</translation>
    </message>
    <message>
        <source>Care Interval</source>
        <translation>ケアの間隔</translation>
    </message>
    <message>
        <source>Care Mode</source>
        <translation>ケアモード</translation>
    </message>
    <message>
        <source>Care Plan</source>
        <translation>ケアの予定</translation>
    </message>
    <message>
        <source>Care Reminder</source>
        <translation>ケアの通知</translation>
    </message>
    <message>
        <source>Care Running</source>
        <translation>ケアの実行中</translation>
    </message>
    <message>
        <source>Care begins only when you start it.</source>
        <translation>ケアは自分で始めたときだけ行われます。</translation>
    </message>
    <message>
        <source>Care evens out how the pixels have aged, so that no picture stays visible. It takes about 6 minutes.</source>
        <translation>ケアは画素の劣化をそろえ、焼き付きを防ぎます。約&#xa0;6&#xa0;分かかります。</translation>
    </message>
    <message>
        <source>Care is due.</source>
        <translation>ケアの時期です。</translation>
    </message>
    <message>
        <source>Care is due. The picture goes black for about 6 minutes.</source>
        <translation>ケアの時期です。画面が約&#xa0;6&#xa0;分間黒くなります。</translation>
    </message>
    <message>
        <source>Care is due: the monitor begins when it goes to standby.</source>
        <translation>ケアの時期です。モニターが待機状態になると自動で始まります。</translation>
    </message>
    <message>
        <source>Care is running. Leave the monitor on until the picture is back.</source>
        <translation>ケアを実行中です。画面が戻るまでモニターの電源を切らないでください。</translation>
    </message>
    <message>
        <source>Care takes about 6 minutes, in which the picture is black. It evens out how the pixels have aged; nothing that is open is lost.</source>
        <translation>ケアは約&#xa0;6&#xa0;分で、その間は画面が黒くなります。画素の劣化をそろえます。開いているものは失われません。</translation>
    </message>
    <message>
        <source>Caret</source>
        <translation>山形</translation>
    </message>
    <message>
        <source>Cell Size</source>
        <translation>セルの大きさ</translation>
    </message>
    <message>
        <source>Changes take effect when you press &quot;%1&quot;.</source>
        <translation>「%1」を押すと変更が反映されます。</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Choose a mode on the left. On now: %1</source>
        <translation>左側でモードを選んでください。現在: %1</translation>
    </message>
    <message>
        <source>Choose an entry on the left.</source>
        <translation>左側で項目を選んでください。</translation>
    </message>
    <message>
        <source>Choose the controls</source>
        <translation>表示する項目を選ぶ</translation>
    </message>
    <message>
        <source>Choose the scene again, or read everything once.</source>
        <translation>シーンの再選択か再読み取りをお試しください。</translation>
    </message>
    <message>
        <source>Chosen, and switched off now.</source>
        <translation>選択済み。現在はオフです。</translation>
    </message>
    <message>
        <source>Cinema colours at a D65 white.</source>
        <translation>D65&#xa0;白色点での映画の色です。</translation>
    </message>
    <message>
        <source>Clean Frame</source>
        <translation>フレーム消去</translation>
    </message>
    <message>
        <source>Clearly darker: for texts, not for pictures.</source>
        <translation>はっきり暗くなります。文字向きで、画像には不向きです。</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>時計</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>時計回り</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Close = dark, Normal = one colour, Effect = it moves, Rhythm = follows sound or screen, Eye Care = calm white.</source>
        <translation>オフ&#xa0;= 消灯、通常&#xa0;= 一色、エフェクト&#xa0;= 動く光、連動&#xa0;= 音や画面に合わせる、アイケア&#xa0;= 白い光。</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>寒色</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Color Enchance</source>
        <translation>色彩強調</translation>
    </message>
    <message>
        <source>Color Enhance</source>
        <translation>色彩強調</translation>
    </message>
    <message>
        <source>Color Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>色空間</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>色温度</translation>
    </message>
    <message>
        <source>Colour and brightness follow what this computer plays. For music.</source>
        <translation>色と明るさがコンピューターの音に合わせて変わります。音楽向けです。</translation>
    </message>
    <message>
        <source>Combination to press</source>
        <translation>押す組み合わせ</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>構図</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Convo</source>
        <translation>会話</translation>
    </message>
    <message>
        <source>Cool white: text looks crisp.</source>
        <translation>冷たい白で、文字がくっきり見えます。</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>レポートをコピー</translation>
    </message>
    <message>
        <source>Counterclockwise</source>
        <translation>反時計回り</translation>
    </message>
    <message>
        <source>Counts down from this. Take as long as you mean to play.</source>
        <translation>この時間からカウントダウンします。プレイする予定の長さに合わせてください。</translation>
    </message>
    <message>
        <source>Counts down in a corner, so that you notice how long you have played.</source>
        <translation>画面の隅でカウントダウンし、プレイ時間がわかります。</translation>
    </message>
    <message>
        <source>Counts up in a corner, to the time that you choose, and begins again.</source>
        <translation>画面の隅で計時し、選んだ時間になると最初に戻ります。</translation>
    </message>
    <message>
        <source>Counts up to this and begins again. Take the length of a round.</source>
        <translation>この時間まで計り、最初に戻ります。1&#xa0;ラウンドの長さに合わせてください。</translation>
    </message>
    <message>
        <source>Covers least. For a screen that is near.</source>
        <translation>隠す部分が最も少なく、近くで見る画面向けです。</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>十字</translation>
    </message>
    <message>
        <source>Crosshair Color</source>
        <translation>照準の色</translation>
    </message>
    <message>
        <source>Crosshair Place</source>
        <translation>照準の位置</translation>
    </message>
    <message>
        <source>Crosshair Shape</source>
        <translation>照準の形</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Custom Color</source>
        <translation>カスタム色</translation>
    </message>
    <message>
        <source>Custom Mode</source>
        <translation>カスタムモード</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>カスタムサイズ</translation>
    </message>
    <message>
        <source>Cut across</source>
        <translation>横に分割</translation>
    </message>
    <message>
        <source>Cut upright</source>
        <translation>縦に分割</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>DCI-P3</source>
        <translation>DCI-P3</translation>
    </message>
    <message>
        <source>DCI-P3 Mode</source>
        <translation>DCI-P3&#xa0;モード</translation>
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
        <translation>DICOM モード</translation>
    </message>
    <message>
        <source>DP Alt Mode</source>
        <translation>DP Alt モード</translation>
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
        <translation>プログラミング(暗)</translation>
    </message>
    <message>
        <source>Dark and rich in contrast, as films look in a cinema.</source>
        <translation>暗めでコントラストが強く、映画館のような見え方です。</translation>
    </message>
    <message>
        <source>Dark parts become a little darker.</source>
        <translation>暗い部分が少し暗くなります。</translation>
    </message>
    <message>
        <source>Dark places are always a little brighter.</source>
        <translation>暗い場所を常に少し明るくします。</translation>
    </message>
    <message>
        <source>Dark places are always much brighter.</source>
        <translation>暗い場所を常に大きく明るくします。</translation>
    </message>
    <message>
        <source>Dark places stay dark.</source>
        <translation>暗い場所は暗いままです。</translation>
    </message>
    <message>
        <source>Dark scenes become a little brighter, bright ones stay as they are.</source>
        <translation>暗い場面を少し明るくし、明るい場面はそのままにします。</translation>
    </message>
    <message>
        <source>Dark scenes become much brighter, bright ones stay as they are.</source>
        <translation>暗い場面を大きく明るくし、明るい場面はそのままにします。</translation>
    </message>
    <message>
        <source>Dark with the Screen</source>
        <translation>画面と消灯</translation>
    </message>
    <message>
        <source>Darkens the rim of the screen, so that the middle draws the eye.</source>
        <translation>画面の縁を暗くして、中央に視線を集めます。</translation>
    </message>
    <message>
        <source>Darker black, for films and games.</source>
        <translation>黒がより深くなります。映画やゲームに向いています。</translation>
    </message>
    <message>
        <source>Deep and high tones are stronger, as in a cinema.</source>
        <translation>映画館のように低音と高音を強めます。</translation>
    </message>
    <message>
        <source>Deep contrast for films.</source>
        <translation>映画に適した深みのあるコントラストです。</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>デフォルト</translation>
    </message>
    <message>
        <source>Defeat</source>
        <translation>敗北</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Delete Frame</source>
        <translation>フレーム削除</translation>
    </message>
    <message>
        <source>Delete layout</source>
        <translation>レイアウトを削除</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>デスクトップ</translation>
    </message>
    <message>
        <source>Desktop Reminder</source>
        <translation>デスクトップ通知</translation>
    </message>
    <message>
        <source>Detection Rate</source>
        <translation>検出の速さ</translation>
    </message>
    <message>
        <source>Dims after a few minutes without a change.</source>
        <translation>数分間変化がないと暗くします。</translation>
    </message>
    <message>
        <source>Dims gently, so that changes are hardly noticed.</source>
        <translation>変化が気にならないよう、穏やかに暗くします。</translation>
    </message>
    <message>
        <source>Dims signs that stand still, such as a station&apos;s logo. Close = off; Low to High are stronger in turn.</source>
        <translation>テレビ局のロゴなど、動かないマークを暗くします。オフ&#xa0;= 使わない、低から高へ順に強くなります。</translation>
    </message>
    <message>
        <source>Dims soon: spares the panel most.</source>
        <translation>すぐに暗くします。パネルの負担が最も軽くなります。</translation>
    </message>
    <message>
        <source>Dims the border between bright and dark, as beside black bars. Close = off; Low to High are stronger in turn.</source>
        <translation>黒帯の脇など、明暗の境目を暗くします。オフ&#xa0;= 使わない、低から高へ順に強くなります。</translation>
    </message>
    <message>
        <source>Dims the light behind dark parts, so that black is deeper. Close = off; the others are stronger in turn.</source>
        <translation>暗い部分のバックライトを弱め、黒を深くします。右の項目ほど強くなります。</translation>
    </message>
    <message>
        <source>Dims the screen while nothing moves. Detection Rate is how soon it notices that.</source>
        <translation>動きがない間、画面を暗くします。検出の速さは、それに気づく早さです。</translation>
    </message>
    <message>
        <source>Dims the taskbar, which always stands in one place. Close = off; Low to High are stronger in turn.</source>
        <translation>いつも同じ場所にあるタスクバーを暗くします。オフ&#xa0;= 使わない、低から高へ順に強くなります。</translation>
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
        <translation>Display P3&#xa0;モード</translation>
    </message>
    <message>
        <source>Display Version</source>
        <translation>モニターのバージョン</translation>
    </message>
    <message>
        <source>Do not save</source>
        <translation>保存しない</translation>
    </message>
    <message>
        <source>Dot</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Dotted cross</source>
        <translation>点付き十字</translation>
    </message>
    <message>
        <source>Double Kill</source>
        <translation>ダブルキル</translation>
    </message>
    <message>
        <source>Draw a line through a zone to cut it, or drag an edge. With the keyboard: the arrows choose a zone, Ctrl and an arrow moves its edge.</source>
        <translation>領域に線を引くと分割され、境界線はドラッグで動かせます。キーボードでは矢印キーで領域を選び、Ctrl+矢印キーで境界線を動かします。</translation>
    </message>
    <message>
        <source>Draw frames cell by cell; the matrix plays them in a loop.</source>
        <translation>フレームを&#xa0;1&#xa0;セルずつ描きます。マトリクスは繰り返し再生します。</translation>
    </message>
    <message>
        <source>Drawn by the monitor itself, so it works in every game and is no program that a game could see.</source>
        <translation>モニター自身が描くため、どのゲームでも使え、アプリとして検出されません。</translation>
    </message>
    <message>
        <source>Draws guide lines for composing a picture. Close = none, Trichotomy = into thirds, Round = a circle.</source>
        <translation>構図の目安になる線を表示します。「三分割」は画面を三等分します。</translation>
    </message>
    <message>
        <source>Draws lines that divide the screen. Close = none; Alignment_4, Alignment_6 and Alignment_9 = into 4, 6 or 9 parts.</source>
        <translation>画面を&#xa0;4、6、9&#xa0;つに分ける線を表示します。</translation>
    </message>
    <message>
        <source>Draws the outline of a sheet on the screen. Close = none, Custom Size = as large as you set it.</source>
        <translation>画面に用紙の枠を表示します。「カスタムサイズ」では大きさを決められます。</translation>
    </message>
    <message>
        <source>Drop a chunk</source>
        <translation>チャンク欠落</translation>
    </message>
    <message>
        <source>Duplicate Frame</source>
        <translation>フレーム複製</translation>
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
        <translation>ダイナミック照準</translation>
    </message>
    <message>
        <source>Dynamic Crosshair Color</source>
        <translation>ダイナミック照準の色</translation>
    </message>
    <message>
        <source>Dynamic Crosshair Size</source>
        <translation>ダイナミック照準の大きさ</translation>
    </message>
    <message>
        <source>Dynamic OD</source>
        <translation>ダイナミック OD</translation>
    </message>
    <message>
        <source>E-Book</source>
        <translation>電子書籍</translation>
    </message>
    <message>
        <source>E-Book Mode</source>
        <translation>電子書籍モード</translation>
    </message>
    <message>
        <source>E-Book Mode is black and white: colours need another scene mode.</source>
        <translation>電子書籍モードは白黒表示です。色を調整するには別のシーンモードを選んでください。</translation>
    </message>
    <message>
        <source>EBU</source>
        <translation>EBU</translation>
    </message>
    <message>
        <source>EBU Mode</source>
        <translation>EBU モード</translation>
    </message>
    <message>
        <source>Easy to find, and covers what it points at.</source>
        <translation>見つけやすい反面、狙う先が隠れます。</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>エフェクト</translation>
    </message>
    <message>
        <source>Emberline</source>
        <translation>Emberline</translation>
    </message>
    <message>
        <source>Enlarges the middle of the screen, so that what is far away is seen.</source>
        <translation>画面の中央を拡大し、遠くを見やすくします。</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>European broadcasting primaries.</source>
        <translation>欧州の放送規格の三原色です。</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Every packet holds 7001 frames until the button is released</source>
        <translation>ボタンを戻すまで、各パケットは&#xa0;7001&#xa0;フレームになります</translation>
    </message>
    <message>
        <source>Every picture is shown with the usual range.</source>
        <translation>すべて通常のダイナミックレンジで表示します。</translation>
    </message>
    <message>
        <source>Every request takes 400 ms longer</source>
        <translation>すべての要求に&#xa0;400&#xa0;ミリ秒余計にかかります</translation>
    </message>
    <message>
        <source>Everything that the panel can show.</source>
        <translation>パネルが表示できるすべての色です。</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Export Animate</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>Extensible, floating point</source>
        <translation>拡張形式、浮動小数点</translation>
    </message>
    <message>
        <source>Extensible, integer</source>
        <translation>拡張形式、整数</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <translation>アイケア</translation>
    </message>
    <message>
        <source>Eye Care Mode</source>
        <translation>アイケアモード</translation>
    </message>
    <message>
        <source>Eyeshield Remind</source>
        <translation>目の休憩通知</translation>
    </message>
    <message>
        <source>Falling Peaks</source>
        <translation>ピークの落下</translation>
    </message>
    <message>
        <source>Far above the middle, for games that aim high on the screen.</source>
        <translation>中央よりかなり上です。画面の上の方を狙うゲーム向けです。</translation>
    </message>
    <message>
        <source>Far below the middle, for games that aim low on the screen.</source>
        <translation>中央よりかなり下です。画面の下の方を狙うゲーム向けです。</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>速い</translation>
    </message>
    <message>
        <source>Fast enough for every resolution and refresh rate.</source>
        <translation>すべての解像度とリフレッシュレートに十分な速さです。</translation>
    </message>
    <message>
        <source>Fast, for games. Light edges may be seen on some grey tones.</source>
        <translation>ゲーム向けの速さです。一部の階調で明るい縁が見えることがあります。</translation>
    </message>
    <message>
        <source>Faster: less smear behind what moves.</source>
        <translation>より速くなり、動くものの残像が減ります。</translation>
    </message>
    <message>
        <source>File is null.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <source>Fine lines and clear edges for drawings.</source>
        <translation>図面に適した細い線とくっきりした輪郭です。</translation>
    </message>
    <message>
        <source>First control</source>
        <translation>1&#xa0;つ目の項目</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>点滅</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>フロー</translation>
    </message>
    <message>
        <source>Focus Dimming</source>
        <translation>フォーカス減光</translation>
    </message>
    <message>
        <source>Focus Dimming Level</source>
        <translation>フォーカス減光の強さ</translation>
    </message>
    <message>
        <source>Follow Desc</source>
        <translation>アプリごとにシーンモードを指定します。アプリが前面にある間だけモニターが切り替わり、離れると基本のシーンに戻ります。</translation>
    </message>
    <message>
        <source>Follow Setting</source>
        <translation>シーン連動の設定</translation>
    </message>
    <message>
        <source>For a laptop whose picture comes by its USB cable. Off if that socket only carries data and power.</source>
        <translation>USB ケーブルで映像を送るノートコンピューター用です。その端子がデータと給電だけならオフにします。</translation>
    </message>
    <message>
        <source>For a player or a console that is to wake the monitor. Quick Boot cannot be on at the same time.</source>
        <translation>プレーヤーやゲーム機でモニターの電源を入れたい場合に使います。「高速起動」と同時にはオンにできません。</translation>
    </message>
    <message>
        <source>For a screen that is left alone for long. Films and games move and are not dimmed.</source>
        <translation>長く放置される画面向けです。動きのある映画やゲームは暗くなりません。</translation>
    </message>
    <message>
        <source>For a screen that is used for pictures and texts in turn. Leave it off while you judge colours.</source>
        <translation>映像と文字を交互に見る画面向けです。色を確かめるときはオフにしてください。</translation>
    </message>
    <message>
        <source>For charging a telephone at the monitor, and for keyboard and mouse. Off saves power in standby.</source>
        <translation>モニターでスマートフォンを充電し、キーボードやマウスを使えます。オフにすると待機中の節電になります。</translation>
    </message>
    <message>
        <source>For code on a dark ground.</source>
        <translation>暗い背景のコード向けです。</translation>
    </message>
    <message>
        <source>For code on a light ground.</source>
        <translation>明るい背景のコード向けです。</translation>
    </message>
    <message>
        <source>For computers, which send 0 to 255.</source>
        <translation>0&#xa0;から&#xa0;255&#xa0;を送るコンピューター向けです。</translation>
    </message>
    <message>
        <source>For fast games in which a crosshair that stands still gets lost.</source>
        <translation>動かない照準を見失いやすい、速いゲーム向けです。</translation>
    </message>
    <message>
        <source>For finding out why a monitor does not answer as it should.</source>
        <translation>モニターが正しく応答しない原因を調べるときに使います。</translation>
    </message>
    <message>
        <source>For games in which every moment counts. For films and work leave it off.</source>
        <translation>一瞬を争うゲーム向けです。映画や作業のときはオフにしてください。</translation>
    </message>
    <message>
        <source>For games in which the middle decides. Maps and figures at the rim get darker too.</source>
        <translation>中央が勝負を決めるゲーム向けです。縁の地図や数字も暗くなります。</translation>
    </message>
    <message>
        <source>For games that have no crosshair of their own, or one that is hard to see.</source>
        <translation>照準のないゲームや、照準が見にくいゲーム向けです。</translation>
    </message>
    <message>
        <source>For games with far targets. It covers a part of the picture.</source>
        <translation>標的が遠いゲーム向けです。画面の一部が隠れます。</translation>
    </message>
    <message>
        <source>For games, whose pictures come now faster, now slower. The computer must have it switched on as well.</source>
        <translation>描画の速さが変わるゲーム向けです。コンピューター側でもオンにしてください。</translation>
    </message>
    <message>
        <source>For most games.</source>
        <translation>多くのゲームに向いています。</translation>
    </message>
    <message>
        <source>For placing windows, pictures or a drawing evenly around the middle.</source>
        <translation>ウィンドウや画像、図形を中央から均等に配置するときに使います。</translation>
    </message>
    <message>
        <source>For players and consoles that send 16 to 235. With a computer black looks grey.</source>
        <translation>16&#xa0;から&#xa0;235&#xa0;を送るプレーヤーやゲーム機向けです。コンピューターでは黒が灰色に見えます。</translation>
    </message>
    <message>
        <source>For scenes that are near.</source>
        <translation>近い場面に向いています。</translation>
    </message>
    <message>
        <source>For targets that move: what is in the ring is near enough.</source>
        <translation>動く標的に向いています。輪に入れば十分です。</translation>
    </message>
    <message>
        <source>For wide landscapes; coarse.</source>
        <translation>広い風景に向いています。画像は粗くなります。</translation>
    </message>
    <message>
        <source>Found at once, also from far away.</source>
        <translation>離れていてもすぐに見つかります。</translation>
    </message>
    <message>
        <source>Four bytes of the next scene-mode block get lost</source>
        <translation>次のシーンモードのデータから&#xa0;4&#xa0;バイトが失われます</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>枠線</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>フレーム&#xa0;%1</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>フレーム</translation>
    </message>
    <message>
        <source>Frames/s</source>
        <translation>フレーム/秒</translation>
    </message>
    <message>
        <source>Frames: %1</source>
        <translation>フレーム数: %1</translation>
    </message>
    <message>
        <source>Frames: %1, of which the accessory takes %2</source>
        <translation>フレーム数: %1（アクセサリに入るのは&#xa0;%2&#xa0;まで）</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>周波数</translation>
    </message>
    <message>
        <source>From now on another program has it.</source>
        <translation>これ以降、別のアプリが使用します。</translation>
    </message>
    <message>
        <source>Front Brightness</source>
        <translation>前面の輝度</translation>
    </message>
    <message>
        <source>Front Color</source>
        <translation>前面の色</translation>
    </message>
    <message>
        <source>Front and Rear</source>
        <translation>前面と背面</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Gama</source>
        <translation>ガンマ</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>ゲーム</translation>
    </message>
    <message>
        <source>Game Aid</source>
        <translation>ゲーム補助</translation>
    </message>
    <message>
        <source>Game Crosshair</source>
        <translation>照準</translation>
    </message>
    <message>
        <source>Game Rush</source>
        <translation>ゲームラッシュ</translation>
    </message>
    <message>
        <source>Game Time</source>
        <translation>ゲームタイマー</translation>
    </message>
    <message>
        <source>Game Time Length</source>
        <translation>ゲームタイマーの長さ</translation>
    </message>
    <message>
        <source>Game Time Place</source>
        <translation>ゲームタイマーの位置</translation>
    </message>
    <message>
        <source>Game VS</source>
        <translation>ゲーム対戦</translation>
    </message>
    <message>
        <source>Game report</source>
        <translation>ゲームレポート</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>ガンマ</translation>
    </message>
    <message>
        <source>General Settings</source>
        <translation>一般設定</translation>
    </message>
    <message>
        <source>Give the zone away</source>
        <translation>隣の領域に統合</translation>
    </message>
    <message>
        <source>Global Rhythm</source>
        <translation>全体連動</translation>
    </message>
    <message>
        <source>Go deaf</source>
        <translation>応答停止</translation>
    </message>
    <message>
        <source>Golden Section</source>
        <translation>黄金分割</translation>
    </message>
    <message>
        <source>Gravity Sensor</source>
        <translation>重力センサー</translation>
    </message>
    <message>
        <source>Gray Response</source>
        <translation>応答速度</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
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
        <translation>HDTV ビデオ</translation>
    </message>
    <message>
        <source>Halo Control</source>
        <translation>ハロー制御</translation>
    </message>
    <message>
        <source>Halves</source>
        <translation>2&#xa0;分割</translation>
    </message>
    <message>
        <source>Hanging</source>
        <translation>吊り下げ</translation>
    </message>
    <message>
        <source>HawkEye Brightness</source>
        <translation>ホークアイの輝度</translation>
    </message>
    <message>
        <source>HawkEye Contrast</source>
        <translation>ホークアイのコントラスト</translation>
    </message>
    <message>
        <source>HawkEye Sharpness</source>
        <translation>ホークアイのシャープネス</translation>
    </message>
    <message>
        <source>HawkEye Vision</source>
        <translation>ホークアイ</translation>
    </message>
    <message>
        <source>HawkEye Zoom</source>
        <translation>ホークアイの倍率</translation>
    </message>
    <message>
        <source>Headshot</source>
        <translation>ヘッドショット</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>High-definition television.</source>
        <translation>ハイビジョンテレビ向けです。</translation>
    </message>
    <message>
        <source>High-definition video work.</source>
        <translation>ハイビジョン映像の制作向けです。</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>明るい</translation>
    </message>
    <message>
        <source>Hold Ctrl or Alt and press a letter or a digit.</source>
        <translation>Ctrl または Alt を押しながら、英字か数字を押してください。</translation>
    </message>
    <message>
        <source>Hotkey conflict</source>
        <translation>ショートカットキーの競合</translation>
    </message>
    <message>
        <source>How and where the monitor shows its menu, and how soon it sleeps without a signal (No Signal Timer).</source>
        <translation>メニューの表示方法と位置です。「無信号タイマー」は信号がないときにスリープするまでの時間です。</translation>
    </message>
    <message>
        <source>How bright the enlarged part is. Level3 = as the rest; higher ones show what is in the shade.</source>
        <translation>拡大部分の明るさです。「レベル&#xa0;3」は周りと同じで、高くすると影の中が見えてきます。</translation>
    </message>
    <message>
        <source>How bright the lamp shines that tells that the monitor is on. Close = dark, Level3 = brightest.</source>
        <translation>モニターの電源ランプの明るさです。「レベル&#xa0;3」が最も明るくなります。</translation>
    </message>
    <message>
        <source>How bright the middle tones are. The higher the value, the darker.</source>
        <translation>中間の明るさの見え方です。値が大きいほど暗くなります。</translation>
    </message>
    <message>
        <source>How clear its edges are. Level3 = as they come; lower ones hide coarse dots, higher ones show outlines.</source>
        <translation>拡大部分の輪郭の鮮明さです。「レベル&#xa0;3」はそのまま、低いと粗さが目立たず、高いと輪郭が際立ちます。</translation>
    </message>
    <message>
        <source>How far light and dark are apart in it. Level3 = as the rest; higher ones help in fog and dust.</source>
        <translation>拡大部分の明暗の差です。「レベル&#xa0;3」は周りと同じで、高くすると霧や砂ぼこりの中で見やすくなります。</translation>
    </message>
    <message>
        <source>How long the monitor waits without a signal before it sleeps.</source>
        <translation>信号がないとき、モニターがスリープするまでの時間です。</translation>
    </message>
    <message>
        <source>How often a day the tool may change the monitor without your doing.</source>
        <translation>ツールが&#xa0;1&#xa0;日に自動でモニターを変更してよい回数です。</translation>
    </message>
    <message>
        <source>How pictures with a high dynamic range are shown. Close = off, Auto = when the signal has it.</source>
        <translation>ハイダイナミックレンジ映像の表示方法です。「自動」は HDR 信号のときだけオンになります。</translation>
    </message>
    <message>
        <source>How the LED matrix behind the monitor shines. Matrix Lamp and Clock: Close = off, Open = on.</source>
        <translation>モニターの背面にある LED マトリクスの光り方です。</translation>
    </message>
    <message>
        <source>How the lamps move in the mode &quot;Effect&quot;. The picture plays it as it will look.</source>
        <translation>モード「エフェクト」での光の動きです。図が実際の見え方を再生します。</translation>
    </message>
    <message>
        <source>How the link to the monitor has been since the program started.</source>
        <translation>ツール起動後のモニターとの通信状況です。</translation>
    </message>
    <message>
        <source>How the print will look under a D55 light.</source>
        <translation>D55&#xa0;光源での印刷物の見え方です。</translation>
    </message>
    <message>
        <source>How the print will look under a D58 light.</source>
        <translation>D58&#xa0;光源での印刷物の見え方です。</translation>
    </message>
    <message>
        <source>How the print will look.</source>
        <translation>印刷物の見え方です。</translation>
    </message>
    <message>
        <source>How this tool starts, which language it speaks and what it may do by itself.</source>
        <translation>このツールの起動方法、言語、自動で行う操作を決めます。</translation>
    </message>
    <message>
        <source>How warm white looks. 5000K = warmest, 9300K = coldest, User1 to User3 = your own mixtures.</source>
        <translation>白の色合いです。5000K が最も暖かく、9300K が最も冷たい色で、ユーザー&#xa0;1～3&#xa0;は自由に調整できます。</translation>
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
        <translation>巨大パケット</translation>
    </message>
    <message>
        <source>I/O Settings</source>
        <translation>入出力設定</translation>
    </message>
    <message>
        <source>ISP</source>
        <translation>ISP</translation>
    </message>
    <message>
        <source>If you switch the monitor on several times a day. CEC cannot be on at the same time.</source>
        <translation>1&#xa0;日に何度もモニターの電源を入れる場合に使います。CEC と同時にはオンにできません。</translation>
    </message>
    <message>
        <source>If you turn the screen now and then: the monitor&apos;s menu turns with it.</source>
        <translation>画面をときどき回す場合に使います。モニターのメニューも一緒に回ります。</translation>
    </message>
    <message>
        <source>Image sticking protection: clears what a picture leaves behind as soon as it is gone.</source>
        <translation>残像防止: 画面が消えたあとに残る像をすぐに消します。</translation>
    </message>
    <message>
        <source>Import Aligned</source>
        <translation>整列読み込み</translation>
    </message>
    <message>
        <source>Import Animate</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>In the very middle, where most games aim.</source>
        <translation>ちょうど中央です。ほとんどのゲームはここを狙います。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Input Signal</source>
        <translation>入力信号</translation>
    </message>
    <message>
        <source>Inset Place</source>
        <translation>子画面の位置</translation>
    </message>
    <message>
        <source>Inset Size</source>
        <translation>子画面のサイズ</translation>
    </message>
    <message>
        <source>Is it on, its cable plugged in, and DDC/CI on in its menu?</source>
        <translation>電源、ケーブル、メニューの DDC/CI を確認してください。</translation>
    </message>
    <message>
        <source>It answers again; nothing to do.</source>
        <translation>応答が戻りました。操作は不要です。</translation>
    </message>
    <message>
        <source>It is a link, which is not followed.</source>
        <translation>リンクのため、書き込みません。</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>ファイルではありません。</translation>
    </message>
    <message>
        <source>It may not be changed.</source>
        <translation>変更が許可されていません。</translation>
    </message>
    <message>
        <source>Keeps what matters away from the edges.</source>
        <translation>大切なものを端から離せます。</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>キーボード</translation>
    </message>
    <message>
        <source>Keyboard and mouse at the monitor belong to the computer at the Type-B socket.</source>
        <translation>モニターにつないだキーボードとマウスは、Type-B 端子のコンピューターで使えます。</translation>
    </message>
    <message>
        <source>Keyboard and mouse at the monitor belong to the computer at the Type-C socket.</source>
        <translation>モニターにつないだキーボードとマウスは、Type-C 端子のコンピューターで使えます。</translation>
    </message>
    <message>
        <source>Keys of the numeric pad cannot be used.</source>
        <translation>テンキーのキーは使えません。</translation>
    </message>
    <message>
        <source>Kill</source>
        <translation>キル</translation>
    </message>
    <message>
        <source>Knowledge</source>
        <translation>ナレッジ</translation>
    </message>
    <message>
        <source>LANGUAGE_ADD_KEY</source>
        <translation>ショートカットキーを追加</translation>
    </message>
    <message>
        <source>LANGUAGE_SHORTCUTKEY</source>
        <translation>ショートカットキー</translation>
    </message>
    <message>
        <source>LANGUAGE_SHORTCUTKEY_DESC</source>
        <translation>モニターの機能に、どこでも使えるキーを割り当てます。Ctrl または Alt と英字か数字です。Backspace で消去します。</translation>
    </message>
    <message>
        <source>LED matrix</source>
        <translation>LED マトリクス</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>ランプ</translation>
    </message>
    <message>
        <source>Lamp Belt</source>
        <translation>ライトバー</translation>
    </message>
    <message>
        <source>Lamp Belt Brightness</source>
        <translation>バーの輝度</translation>
    </message>
    <message>
        <source>Lamp Belt Color</source>
        <translation>バーの色</translation>
    </message>
    <message>
        <source>Lamp Belt Effect</source>
        <translation>バーのエフェクト</translation>
    </message>
    <message>
        <source>Lamp Belt Front Color</source>
        <translation>バー前面の色</translation>
    </message>
    <message>
        <source>Lamp Belt Rear Color</source>
        <translation>バー背面の色</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>大</translation>
    </message>
    <message>
        <source>Last care: %1</source>
        <translation>前回のケア: %1</translation>
    </message>
    <message>
        <source>Last errors</source>
        <translation>最近のエラー</translation>
    </message>
    <message>
        <source>Last requests to the monitor</source>
        <translation>モニターへの最近の要求</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>あとで</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>Leave it on, unless you see the clearing itself as a flicker when windows close.</source>
        <translation>ウィンドウを閉じたときに画面のちらつきが気にならなければ、オンのままにしてください。</translation>
    </message>
    <message>
        <source>Leaves the target free but for its very middle.</source>
        <translation>真ん中だけを残して標的を隠しません。</translation>
    </message>
    <message>
        <source>Leaves the target free.</source>
        <translation>標的を隠しません。</translation>
    </message>
    <message>
        <source>Less blue light for long days.</source>
        <translation>長時間の作業に適したブルーライト低減です。</translation>
    </message>
    <message>
        <source>Lets the monitor switch between its two modes by itself. Close = off, Open = on.</source>
        <translation>モニターが&#xa0;2&#xa0;つのモードを自動で切り替えます。</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>強さ</translation>
    </message>
    <message>
        <source>Level1</source>
        <translation>レベル&#xa0;1</translation>
    </message>
    <message>
        <source>Level1 follows great changes only, for a quiet room; Level5 also small ones.</source>
        <translation>「レベル&#xa0;1」は大きな変化だけに合わせ、静かな部屋向けです。「レベル&#xa0;5」は小さな変化にも合わせます。</translation>
    </message>
    <message>
        <source>Level2</source>
        <translation>レベル&#xa0;2</translation>
    </message>
    <message>
        <source>Level3</source>
        <translation>レベル&#xa0;3</translation>
    </message>
    <message>
        <source>Level4</source>
        <translation>レベル&#xa0;4</translation>
    </message>
    <message>
        <source>Level5</source>
        <translation>レベル&#xa0;5</translation>
    </message>
    <message>
        <source>Lifts thin lines and dark surfaces of drawings.</source>
        <translation>図面の細い線や暗い面を見やすくします。</translation>
    </message>
    <message>
        <source>Light Brightness</source>
        <translation>ライトの輝度</translation>
    </message>
    <message>
        <source>Light Color</source>
        <translation>ライトの色</translation>
    </message>
    <message>
        <source>Light Color B</source>
        <translation>ライトの色 B</translation>
    </message>
    <message>
        <source>Light Color G</source>
        <translation>ライトの色 G</translation>
    </message>
    <message>
        <source>Light Color R</source>
        <translation>ライトの色 R</translation>
    </message>
    <message>
        <source>Light Direction</source>
        <translation>ライトの方向</translation>
    </message>
    <message>
        <source>Light Effect</source>
        <translation>ライトのエフェクト</translation>
    </message>
    <message>
        <source>Light Level</source>
        <translation>ライトの強さ</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>ライトモード</translation>
    </message>
    <message>
        <source>Light Programme</source>
        <translation>プログラミング(明)</translation>
    </message>
    <message>
        <source>Light Sensor</source>
        <translation>光センサー</translation>
    </message>
    <message>
        <source>Light Speed</source>
        <translation>ライトの速さ</translation>
    </message>
    <message>
        <source>Light Temperature</source>
        <translation>ライトの色温度</translation>
    </message>
    <message>
        <source>Light Timer</source>
        <translation>消灯タイマー</translation>
    </message>
    <message>
        <source>Light and dark follow each other around the ring.</source>
        <translation>明るい所と暗い所が輪に沿って流れます。</translation>
    </message>
    <message>
        <source>Light in Standby</source>
        <translation>待機中も点灯</translation>
    </message>
    <message>
        <source>Lighter = used longer that day, ring = cared for.</source>
        <translation>明るいほど長く使った日、輪&#xa0;= ケアをした日。</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Lines at 38 and 62 per cent: balanced, and less rigid than thirds.</source>
        <translation>38 % と&#xa0;62 % の線。三分割より自然な均衡です。</translation>
    </message>
    <message>
        <source>Lines at thirds: put what matters where they cross.</source>
        <translation>三等分の線。交点に主題を置きます。</translation>
    </message>
    <message>
        <source>Listening…</source>
        <translation>音声を取得中…</translation>
    </message>
    <message>
        <source>Live frames</source>
        <translation>ライブフレーム</translation>
    </message>
    <message>
        <source>Localdimming</source>
        <translation>ローカルディミング</translation>
    </message>
    <message>
        <source>Locks the monitor&apos;s own menu, so that nobody changes it by accident.</source>
        <translation>モニターのメニューをロックし、誤って変更されるのを防ぎます。</translation>
    </message>
    <message>
        <source>Look for the monitor again</source>
        <translation>モニターをもう一度探す</translation>
    </message>
    <message>
        <source>Lose a reply</source>
        <translation>応答欠落</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>ブルーライト低減</translation>
    </message>
    <message>
        <source>Low Health</source>
        <translation>体力低下</translation>
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
        <translation>MPCS/LD では Ull レベルを使えません。別のシーンモードを選んでください。</translation>
    </message>
    <message>
        <source>MPCS/ULL FPS</source>
        <translation>MPCS/ULL FPS</translation>
    </message>
    <message>
        <source>MPCS/ULL FPS offers the Ull levels only; the others need another scene mode.</source>
        <translation>MPCS/ULL FPS で選べるのは Ull レベルだけです。ほかのレベルには別のシーンモードが必要です。</translation>
    </message>
    <message>
        <source>Mac View</source>
        <translation>Mac ビュー</translation>
    </message>
    <message>
        <source>Machine Select</source>
        <translation>モニターの選択</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>Main and side</source>
        <translation>メインとサイド</translation>
    </message>
    <message>
        <source>Make it your own</source>
        <translation>好みに合わせる</translation>
    </message>
    <message>
        <source>Makes colours stronger. 0 = off.</source>
        <translation>色を鮮やかにします。0&#xa0;でオフです。</translation>
    </message>
    <message>
        <source>Makes dark parts lighter or darker, so that you see what is in the shadows.</source>
        <translation>暗い部分の明るさを変え、影の中を見やすくします。</translation>
    </message>
    <message>
        <source>Makes what moves look sharper. Close = off; Low to High and Ull-Level1 to 3 are stronger in turn.</source>
        <translation>動きをくっきり見せます。「低」から「高」、「Ull レベル&#xa0;1」から「Ull レベル&#xa0;3」の順に強くなります。</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>Marks along two edges, to measure and compare lengths.</source>
        <translation>2&#xa0;辺に目盛りを表示し、長さを測れます。</translation>
    </message>
    <message>
        <source>Matches notebooks with a Display P3 screen.</source>
        <translation>Display P3&#xa0;画面のノートコンピューターと色を合わせます。</translation>
    </message>
    <message>
        <source>Matrix Brightness</source>
        <translation>マトリクスの輝度</translation>
    </message>
    <message>
        <source>Matrix Form</source>
        <translation>マトリクス形状</translation>
    </message>
    <message>
        <source>Matrix Lamp</source>
        <translation>マトリクスランプ</translation>
    </message>
    <message>
        <source>Matrix Mode1</source>
        <translation>マトリクスのモード&#xa0;1</translation>
    </message>
    <message>
        <source>Matrix Mode2</source>
        <translation>マトリクスのモード&#xa0;2</translation>
    </message>
    <message>
        <source>Matrix Mode3</source>
        <translation>マトリクスのモード&#xa0;3</translation>
    </message>
    <message>
        <source>Matrix Power Off</source>
        <translation>マトリクスの電源オフ</translation>
    </message>
    <message>
        <source>Matrix Standby</source>
        <translation>マトリクスの待機</translation>
    </message>
    <message>
        <source>Matrix of the simulated accessory</source>
        <translation>シミュレートされたアクセサリのマトリクス</translation>
    </message>
    <message>
        <source>Maximum 192 frames</source>
        <translation>最大&#xa0;192&#xa0;フレーム</translation>
    </message>
    <message>
        <source>Median answer</source>
        <translation>応答の中央値</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Menu Lock</source>
        <translation>メニューロック</translation>
    </message>
    <message>
        <source>Menu lock already opened!</source>
        <translation>メニューロックは既に有効です！</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Middle tones a little brighter than usual.</source>
        <translation>中間の階調が標準より少し明るくなります。</translation>
    </message>
    <message>
        <source>Middle tones a little darker, for films in a dim room.</source>
        <translation>中間の階調が少し暗くなります。薄暗い部屋での映画に向いています。</translation>
    </message>
    <message>
        <source>Middle+</source>
        <translation>やや上</translation>
    </message>
    <message>
        <source>Middle-</source>
        <translation>やや下</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>ミラー</translation>
    </message>
    <message>
        <source>Mix format</source>
        <translation>ミックス形式</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Mode %1</source>
        <translation>モード&#xa0;%1</translation>
    </message>
    <message>
        <source>Mode1</source>
        <translation>モード&#xa0;1</translation>
    </message>
    <message>
        <source>Mode2</source>
        <translation>モード&#xa0;2</translation>
    </message>
    <message>
        <source>Mode3</source>
        <translation>モード&#xa0;3</translation>
    </message>
    <message>
        <source>Mode4</source>
        <translation>モード&#xa0;4</translation>
    </message>
    <message>
        <source>Mode5</source>
        <translation>モード&#xa0;5</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>機種</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>モニター</translation>
    </message>
    <message>
        <source>Monitor Health</source>
        <translation>モニターの状態</translation>
    </message>
    <message>
        <source>More than two fifths of the screen&apos;s width: small text stays readable.</source>
        <translation>画面の幅の&#xa0;5&#xa0;分の&#xa0;2&#xa0;以上。小さな文字も読めます。</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>動き</translation>
    </message>
    <message>
        <source>Moves now and then, for everyday work.</source>
        <translation>ときどき動かします。普段の作業に向いています。</translation>
    </message>
    <message>
        <source>Moves often: for menus and maps that stand still for hours.</source>
        <translation>頻繁に動かします。メニューや地図が何時間も動かない画面に向いています。</translation>
    </message>
    <message>
        <source>Moves seldom: nobody notices it.</source>
        <translation>まれに動かします。気づくことはありません。</translation>
    </message>
    <message>
        <source>Moves the whole picture by a few pixels now and then, so that edges do not burn in. Close = off.</source>
        <translation>ときどき画面全体を数画素ずらし、輪郭の焼き付きを防ぎます。オフ&#xa0;= 使わない。</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>映画</translation>
    </message>
    <message>
        <source>Movie Mode</source>
        <translation>映画モード</translation>
    </message>
    <message>
        <source>Much darker: the best protection where the same picture stands for hours.</source>
        <translation>大きく暗くします。同じ画面が何時間も続くときに最も効果があります。</translation>
    </message>
    <message>
        <source>Multi-window</source>
        <translation>マルチウィンドウ</translation>
    </message>
    <message>
        <source>Music Mode</source>
        <translation>音楽モード</translation>
    </message>
    <message>
        <source>Must match the computer&apos;s signal. RGB Auto = found out by itself, RGB Limit = 16 to 235, RGB Full = 0 to 255.</source>
        <translation>コンピューターの信号に合わせます。「RGB 自動」は自動判別、リミテッドは&#xa0;16～235、フルは&#xa0;0～255。</translation>
    </message>
    <message>
        <source>My layout</source>
        <translation>マイレイアウト</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>NTSC Video</source>
        <translation>NTSC ビデオ</translation>
    </message>
    <message>
        <source>NTSC television.</source>
        <translation>NTSC 方式のテレビ向けです。</translation>
    </message>
    <message>
        <source>Name of the layout</source>
        <translation>レイアウトの名前</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>ネイティブ</translation>
    </message>
    <message>
        <source>Native Mode</source>
        <translation>ネイティブモード</translation>
    </message>
    <message>
        <source>Nearly the usual white, a touch warmer.</source>
        <translation>標準に近く、ほんの少し暖かい白です。</translation>
    </message>
    <message>
        <source>New device</source>
        <translation>新しいデバイス</translation>
    </message>
    <message>
        <source>New layout</source>
        <translation>新しいレイアウト</translation>
    </message>
    <message>
        <source>Next form</source>
        <translation>次のタイプ</translation>
    </message>
    <message>
        <source>Next value</source>
        <translation>次の値</translation>
    </message>
    <message>
        <source>Next zone</source>
        <translation>次の領域</translation>
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
        <translation>夜間モード</translation>
    </message>
    <message>
        <source>Night View C.T</source>
        <translation>夜間色温度</translation>
    </message>
    <message>
        <source>Night Vision</source>
        <translation>暗視</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>No Signal Timer</source>
        <translation>無信号タイマー</translation>
    </message>
    <message>
        <source>No Type-C data cable or HDMI/DP + USB data cable connected.</source>
        <translation>Type-C データケーブルまたは HDMI/DP + USB データケーブルが接続されていません。</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <source>No answer for %1 s</source>
        <translation>%1&#xa0;秒間応答なし</translation>
    </message>
    <message>
        <source>No care has been seen yet: hours count from the first start of this tool.</source>
        <translation>ケアの記録はまだありません。時間はこのツールを初めて起動した時からの累計です。</translation>
    </message>
    <message>
        <source>No file path selected.</source>
        <translation>ファイルが選択されていません。</translation>
    </message>
    <message>
        <source>No limit</source>
        <translation>無制限</translation>
    </message>
    <message>
        <source>No programs yet: add one and choose its scene.</source>
        <translation>アプリはまだありません。追加してシーンを選んでください。</translation>
    </message>
    <message>
        <source>No shortcuts yet: choose a function above and add it.</source>
        <translation>ショートカットキーはまだありません。上で機能を選んで追加してください。</translation>
    </message>
    <message>
        <source>No window is in front: press on the one that you mean first.</source>
        <translation>前面にウィンドウがありません。先に目的のウィンドウをクリックしてください。</translation>
    </message>
    <message>
        <source>No zone beside it can take this one.</source>
        <translation>隣に統合できる領域がありません。</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>ノイズ</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>None.</source>
        <translation>ありません。</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>通常</translation>
    </message>
    <message>
        <source>Not chosen here yet. The accessory does not tell what it has.</source>
        <translation>まだここで選択されていません。アクセサリは現在の設定を知らせません。</translation>
    </message>
    <message>
        <source>Not told: %1</source>
        <translation>読み取れなかった値: %1</translation>
    </message>
    <message>
        <source>Not uploaded from here. In Custom Mode it is &quot;%1&quot;.</source>
        <translation>まだここから書き込んでいません。カスタムモードでは「%1」です。</translation>
    </message>
    <message>
        <source>Nothing above the point: for shots that fall.</source>
        <translation>狙点の上が空くため、落ちる弾道に向いています。</translation>
    </message>
    <message>
        <source>Nothing can be heard or seen: the lamps keep their last colour.</source>
        <translation>音も画面も取得できません。ライトは最後の色を保ちます。</translation>
    </message>
    <message>
        <source>Nothing is dimmed.</source>
        <translation>暗くしません。</translation>
    </message>
    <message>
        <source>Nothing is drawn over the picture.</source>
        <translation>画面の上には何も描かれません。</translation>
    </message>
    <message>
        <source>Nothing is followed but in one of the two rhythm modes.</source>
        <translation>連動するのは&#xa0;2&#xa0;つの連動モードのときだけです。</translation>
    </message>
    <message>
        <source>Nothing is heard: no program plays, or the sound output is gone.</source>
        <translation>音が聞こえません。再生中のアプリがないか、音声出力がなくなりました。</translation>
    </message>
    <message>
        <source>Nothing moves but in the mode &quot;Effect&quot;.</source>
        <translation>動くのはモード「エフェクト」のときだけです。</translation>
    </message>
    <message>
        <source>Nothing plays</source>
        <translation>再生なし</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>OSD Language</source>
        <translation>OSD 言語</translation>
    </message>
    <message>
        <source>OSD Setting</source>
        <translation>OSD 設定</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Office Aid</source>
        <translation>オフィス補助</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Old place</source>
        <translation>元の位置</translation>
    </message>
    <message>
        <source>Oled Care</source>
        <translation>OLED ケア</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>On its way to the monitor.</source>
        <translation>モニターへ送信中です。</translation>
    </message>
    <message>
        <source>On now.</source>
        <translation>現在の設定です。</translation>
    </message>
    <message>
        <source>On now: %1</source>
        <translation>現在: %1</translation>
    </message>
    <message>
        <source>On-screen menu</source>
        <translation>オンスクリーンメニュー</translation>
    </message>
    <message>
        <source>One colour melts into the next. Off = it changes at once.</source>
        <translation>色が次の色へなめらかに変わります。オフ&#xa0;= すぐに変わります。</translation>
    </message>
    <message>
        <source>One colour that stands still. Calm enough for work.</source>
        <translation>動かない&#xa0;1&#xa0;色の光です。作業の邪魔になりません。</translation>
    </message>
    <message>
        <source>One input fills the screen.</source>
        <translation>1&#xa0;つの入力を画面全体に表示します。</translation>
    </message>
    <message>
        <source>Onion Skin</source>
        <translation>オニオンスキン</translation>
    </message>
    <message>
        <source>Only the modes &quot;Normal&quot; and &quot;Effect&quot; have a colour of their own.</source>
        <translation>色を選べるのはモード「通常」と「エフェクト」だけです。</translation>
    </message>
    <message>
        <source>Only the monitor that this tool sets can be read.</source>
        <translation>読み取れるのは、このツールで設定中のモニターだけです。</translation>
    </message>
    <message>
        <source>Only the small window of PIP has a size and a place.</source>
        <translation>サイズと位置があるのは PIP の子画面だけです。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Open cross</source>
        <translation>中抜き十字</translation>
    </message>
    <message>
        <source>Open the page</source>
        <translation>ページを開く</translation>
    </message>
    <message>
        <source>Out of order</source>
        <translation>順序違反</translation>
    </message>
    <message>
        <source>Output Range</source>
        <translation>出力レンジ</translation>
    </message>
    <message>
        <source>PAL &amp; SECAM</source>
        <translation>PAL &amp; SECAM</translation>
    </message>
    <message>
        <source>PAL and SECAM television.</source>
        <translation>PAL・SECAM 方式のテレビ向けです。</translation>
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
        <translation>用紙</translation>
    </message>
    <message>
        <source>Paper Mode</source>
        <translation>ペーパーモード</translation>
    </message>
    <message>
        <source>Paper_A4</source>
        <translation>A4&#xa0;用紙</translation>
    </message>
    <message>
        <source>Paper_B5</source>
        <translation>B5&#xa0;用紙</translation>
    </message>
    <message>
        <source>Paper_B6</source>
        <translation>B6&#xa0;用紙</translation>
    </message>
    <message>
        <source>Parameters of the mode</source>
        <translation>モードのパラメーター</translation>
    </message>
    <message>
        <source>Pearl</source>
        <translation>パール</translation>
    </message>
    <message>
        <source>Photo(P3-D65)</source>
        <translation>写真(P3-D65)</translation>
    </message>
    <message>
        <source>Photographs at a D65 white.</source>
        <translation>D65&#xa0;白色点での写真向けです。</translation>
    </message>
    <message>
        <source>Picture Enhance</source>
        <translation>画質強化</translation>
    </message>
    <message>
        <source>Picture by picture: two inputs side by side, each on half of the screen, to work on both.</source>
        <translation>ピクチャーバイピクチャー: 2&#xa0;つの入力を左右半分ずつに並べ、両方で作業できます。</translation>
    </message>
    <message>
        <source>Picture in picture: a second input in a small window over the first, to keep an eye on another computer.</source>
        <translation>ピクチャーインピクチャー: 2&#xa0;つ目の入力を小さな子画面で重ねます。別のコンピューターの様子を見ておけます。</translation>
    </message>
    <message>
        <source>Pictures are shown as they come.</source>
        <translation>映像をそのまま表示します。</translation>
    </message>
    <message>
        <source>Pixel Shift</source>
        <translation>ピクセルシフト</translation>
    </message>
    <message>
        <source>Pixels change as fast as the panel does by itself. Nothing is driven harder.</source>
        <translation>画素はパネル本来の速さで変わります。加速はしません。</translation>
    </message>
    <message>
        <source>Pixels change faster and motion smears less. Close = off, Topspeed = fastest, which may leave bright edges.</source>
        <translation>画素の変化を速め、残像を減らします。「最速」では輪郭に明るい縁が出ることがあります。</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Plain, floating point</source>
        <translation>標準形式、浮動小数点</translation>
    </message>
    <message>
        <source>Plain, integer</source>
        <translation>標準形式、整数</translation>
    </message>
    <message>
        <source>Playback Level</source>
        <translation>再生レベル</translation>
    </message>
    <message>
        <source>Played</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Playing Interval</source>
        <translation>再生間隔</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Point at an event to see its picture.</source>
        <translation>イベントにポインターを合わせると絵柄が表示されます。</translation>
    </message>
    <message>
        <source>Power LED</source>
        <translation>電源ランプ</translation>
    </message>
    <message>
        <source>Power Off Mode</source>
        <translation>電源オフモード</translation>
    </message>
    <message>
        <source>Power Saving</source>
        <translation>省電力</translation>
    </message>
    <message>
        <source>Power for devices at the monitor&apos;s USB sockets, and the picture through the Type-C socket (DP Alt Mode).</source>
        <translation>モニターの USB 端子につないだ機器への給電と、Type-C 端子からの映像（DP Alt モード）です。</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>押す</translation>
    </message>
    <message>
        <source>Press a number. That of the window&apos;s own zone gives it its old place back. Esc closes.</source>
        <translation>数字キーを押してください。今の領域の数字をもう一度押すと元の位置に戻ります。Esc で閉じます。</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>印刷モード</translation>
    </message>
    <message>
        <source>Print(P3-D50)</source>
        <translation>印刷(P3-D50)</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>アプリ</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Proofs under a D50 light.</source>
        <translation>D50&#xa0;光源での校正刷り向けです。</translation>
    </message>
    <message>
        <source>Pull out</source>
        <translation>抜く</translation>
    </message>
    <message>
        <source>Pull out in mid-transfer</source>
        <translation>転送中に抜く</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>紫</translation>
    </message>
    <message>
        <source>Puts the window in front into a part of the screen. Here you choose how the screen is divided.</source>
        <translation>最前面のウィンドウを画面の一部に配置します。画面の分け方はここで選びます。</translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation>QR コード</translation>
    </message>
    <message>
        <source>QUORVEL desk</source>
        <translation>QUORVEL シミュレーター</translation>
    </message>
    <message>
        <source>Quarters</source>
        <translation>4&#xa0;分割</translation>
    </message>
    <message>
        <source>Questions and answers about your monitor, in your web browser.</source>
        <translation>モニターに関するよくある質問と回答をウェブブラウザーで表示します。</translation>
    </message>
    <message>
        <source>Quick Boot</source>
        <translation>高速起動</translation>
    </message>
    <message>
        <source>Quiet: seen best on snow and bright walls.</source>
        <translation>控えめな色です。雪や明るい壁の上で最もよく見えます。</translation>
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
        <translation>RGB フル</translation>
    </message>
    <message>
        <source>RGB Limit</source>
        <translation>RGB リミテッド</translation>
    </message>
    <message>
        <source>Rainbow</source>
        <translation>レインボー</translation>
    </message>
    <message>
        <source>Raises the contrast between light and dark parts. 0 = off.</source>
        <translation>明るい部分と暗い部分の差を強めます。0&#xa0;でオフです。</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>レート</translation>
    </message>
    <message>
        <source>Read everything once</source>
        <translation>すべて一度読み取る</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>読書</translation>
    </message>
    <message>
        <source>Reading Mode</source>
        <translation>読書モード</translation>
    </message>
    <message>
        <source>Reading sample 0123</source>
        <translation>読書サンプル&#xa0;0123</translation>
    </message>
    <message>
        <source>Reading: %1 of %2</source>
        <translation>読み取り中: %1 / %2</translation>
    </message>
    <message>
        <source>Rear Brightness</source>
        <translation>背面の輝度</translation>
    </message>
    <message>
        <source>Rear Color</source>
        <translation>背面の色</translation>
    </message>
    <message>
        <source>Rec.709</source>
        <translation>Rec.709</translation>
    </message>
    <message>
        <source>Rec.709 Mode</source>
        <translation>Rec.709&#xa0;モード</translation>
    </message>
    <message>
        <source>Recommended to set [Expand These Monitors] in the System-&gt; Screen when operating multiple monitors.</source>
        <translation>複数のモニターを使用する場合は、「システム -&gt; ディスプレイ」で「表示画面を拡張する」に設定することをお勧めします。</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>記録</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>長方形</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Red, green and blue belong to User1, User2 and User3 of Color Temperature.</source>
        <translation>赤・緑・青は、色温度がユーザー&#xa0;1～3&#xa0;のときに調整できます。</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Reduces the glow around bright things on a dark ground.</source>
        <translation>暗い背景にある明るいものの周りのにじみを抑えます。</translation>
    </message>
    <message>
        <source>Refresh Rate</source>
        <translation>リフレッシュレート</translation>
    </message>
    <message>
        <source>Refresh Rate Place</source>
        <translation>リフレッシュレートの位置</translation>
    </message>
    <message>
        <source>Refuse format</source>
        <translation>形式を拒否</translation>
    </message>
    <message>
        <source>Refuse writes</source>
        <translation>書き込み拒否</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes each time the chosen span has passed. Close = off.</source>
        <translation>選んだ時間がたつたびに、目の休憩をお知らせします。</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation>描画中</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>要求</translation>
    </message>
    <message>
        <source>Reset Factory</source>
        <translation>初期化</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Rhythm</source>
        <translation>連動</translation>
    </message>
    <message>
        <source>Rhythm Color</source>
        <translation>連動の色</translation>
    </message>
    <message>
        <source>Rhythm Color L</source>
        <translation>連動の色 左</translation>
    </message>
    <message>
        <source>Rhythm Color R</source>
        <translation>連動の色 右</translation>
    </message>
    <message>
        <source>Rhythm Level</source>
        <translation>連動レベル</translation>
    </message>
    <message>
        <source>Rhythm Source</source>
        <translation>連動の元</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>輪</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>円形</translation>
    </message>
    <message>
        <source>Row %1, cell %2: %3</source>
        <translation>%1&#xa0;行目&#xa0;%2&#xa0;番目: %3</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>定規</translation>
    </message>
    <message>
        <source>Run on startup</source>
        <translation>起動時に実行</translation>
    </message>
    <message>
        <source>SMPTE-C</source>
        <translation>SMPTE-C</translation>
    </message>
    <message>
        <source>SMPTE-C Mode</source>
        <translation>SMPTE-C モード</translation>
    </message>
    <message>
        <source>SR</source>
        <translation>SR</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Saturation R Y G C B M</source>
        <translation>彩度 R Y G C B M</translation>
    </message>
    <message>
        <source>Saturation follows Color Enchance while that is above 0.</source>
        <translation>色彩強調が&#xa0;0&#xa0;より大きい間、彩度はそれに従います。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save Animate</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save Data</source>
        <translation>データ保存</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>ファイルを保存</translation>
    </message>
    <message>
        <source>Save, export or import the animation first.</source>
        <translation>先にアニメーションを保存、書き出し、または読み込んでください。</translation>
    </message>
    <message>
        <source>Scan it with a phone to read more about your monitor.</source>
        <translation>スマートフォンで読み取ると、モニターの詳しい情報を確認できます。</translation>
    </message>
    <message>
        <source>Scence Follow</source>
        <translation>シーン連動</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>シーン</translation>
    </message>
    <message>
        <source>Scene block</source>
        <translation>シーンのデータ</translation>
    </message>
    <message>
        <source>Scene block: one part came late</source>
        <translation>シーンのデータの一部が遅れました</translation>
    </message>
    <message>
        <source>Scene block: one part did not come</source>
        <translation>シーンのデータの一部が届きません</translation>
    </message>
    <message>
        <source>Scene mode</source>
        <translation>シーンモード</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Screen Splitter</source>
        <translation>画面分割</translation>
    </message>
    <message>
        <source>Screen of the simulated monitor</source>
        <translation>シミュレートされたモニターの画面</translation>
    </message>
    <message>
        <source>Scroll Left</source>
        <translation>左へスクロール</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>右へスクロール</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>下へスクロール</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>上へスクロール</translation>
    </message>
    <message>
        <source>Second control</source>
        <translation>2&#xa0;つ目の項目</translation>
    </message>
    <message>
        <source>Second tone</source>
        <translation>2&#xa0;つ目の音</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>カテゴリ</translation>
    </message>
    <message>
        <source>Seen best in dark scenes.</source>
        <translation>暗い場面で最もよく見えます。</translation>
    </message>
    <message>
        <source>Seen best in the dark and on blue.</source>
        <translation>暗い所や青の上で最もよく見えます。</translation>
    </message>
    <message>
        <source>Seen best on green and grey, as in woods and towns.</source>
        <translation>森や街など、緑や灰色の上で最もよく見えます。</translation>
    </message>
    <message>
        <source>Seen best on sand, fire and rust.</source>
        <translation>砂や炎、錆びた色の上で最もよく見えます。</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Select File</source>
        <translation>ファイルを選択</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>すべて解除</translation>
    </message>
    <message>
        <source>Sent again and taken; nothing to do.</source>
        <translation>再送して設定できました。操作は不要です。</translation>
    </message>
    <message>
        <source>Service Settings</source>
        <translation>サービス設定</translation>
    </message>
    <message>
        <source>Set %1 back to &quot;%2&quot;</source>
        <translation>「%1」を「%2」に戻す</translation>
    </message>
    <message>
        <source>Set everything back to how the monitor left the factory? The screen goes dark for a few seconds.</source>
        <translation>モニターのすべての設定を工場出荷時の状態に戻しますか？画面が数秒間暗くなります。</translation>
    </message>
    <message>
        <source>Sets everything in the monitor back to how it left the factory.</source>
        <translation>モニターのすべての設定を工場出荷時の状態に戻します。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Shadow Balance</source>
        <translation>シャドウバランス</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>形</translation>
    </message>
    <message>
        <source>Sharp motion with local dimming.</source>
        <translation>ローカルディミングと鮮明な動きを両立します。</translation>
    </message>
    <message>
        <source>Sharp movement for games.</source>
        <translation>ゲーム向けのくっきりした動きです。</translation>
    </message>
    <message>
        <source>Sharp movement with a short delay, for fast games.</source>
        <translation>遅延を抑えたくっきりした動きです。速いゲームに向いています。</translation>
    </message>
    <message>
        <source>Sharper still, with a short delay.</source>
        <translation>さらにくっきり、遅延は短いままです。</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>シャープネス</translation>
    </message>
    <message>
        <source>Short flashes. Not for people who do not bear flashing light.</source>
        <translation>短い点滅です。点滅が苦手な方は使わないでください。</translation>
    </message>
    <message>
        <source>Shortcut Key</source>
        <translation>ショートカットキー</translation>
    </message>
    <message>
        <source>Shortcut overlay</source>
        <translation>ショートカットキー表示</translation>
    </message>
    <message>
        <source>Shortens the delay between your hand and the picture in fast games. Adaptive-Sync cannot be chosen meanwhile.</source>
        <translation>動きの速いゲームで操作から表示までの遅れを減らします。オンの間は Adaptive-Sync を選べません。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Show Time(s)</source>
        <translation>表示時間(秒)</translation>
    </message>
    <message>
        <source>Show the zones</source>
        <translation>領域を表示</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>表示内容</translation>
    </message>
    <message>
        <source>Shows a ruler on the screen. Angle close = off, Ruler = for lengths, Angle Ruler = for angles.</source>
        <translation>画面に定規を表示します。「定規」は長さ、「分度器」は角度を測ります。</translation>
    </message>
    <message>
        <source>Shows guide lines that help to line things up. Close = off, Open = on.</source>
        <translation>位置をそろえるための補助線を表示します。</translation>
    </message>
    <message>
        <source>Shows in a corner how many pictures a second the monitor gets.</source>
        <translation>モニターが&#xa0;1&#xa0;秒間に受け取る画面の数を隅に表示します。</translation>
    </message>
    <message>
        <source>Shows on the desktop what a shortcut has just changed.</source>
        <translation>ショートカットキーで変えた内容をデスクトップに表示します。</translation>
    </message>
    <message>
        <source>Shows two inputs at once. Drag the small window of PIP to a corner, or one of its edges to a size.</source>
        <translation>2&#xa0;つの入力を同時に表示します。PIP の子画面は隅までドラッグでき、端をドラッグするとサイズが変わります。</translation>
    </message>
    <message>
        <source>Silence</source>
        <translation>無音</translation>
    </message>
    <message>
        <source>Silences the monitor for a while; the volume stays as it is set.</source>
        <translation>モニターの音を一時的に消します。音量の設定は変わりません。</translation>
    </message>
    <message>
        <source>Simulated monitor</source>
        <translation>シミュレートされたモニター</translation>
    </message>
    <message>
        <source>Single points light up here and there.</source>
        <translation>あちこちで点が光ります。</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>スリープ</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>遅い</translation>
    </message>
    <message>
        <source>Slower, and steadier with long or old cables.</source>
        <translation>速度は下がりますが、長いケーブルや古いケーブルで安定します。</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>小</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>なめらか</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>やわらか</translation>
    </message>
    <message>
        <source>Soft Changes</source>
        <translation>なめらか変化</translation>
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
        <translation>サウンド</translation>
    </message>
    <message>
        <source>Sound = what this computer plays, Screen = the picture&apos;s edges. Higher levels follow smaller changes.</source>
        <translation>サウンド&#xa0;= このコンピューターの再生音、画面&#xa0;= 画面の縁の色。レベルが高いほど細かい変化に連動します。</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation>音声出力</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>スペクトラム</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速さ</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Standard Mode</source>
        <translation>標準モード</translation>
    </message>
    <message>
        <source>Standby Mode</source>
        <translation>待機モード</translation>
    </message>
    <message>
        <source>Standing</source>
        <translation>固定表示</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>スター</translation>
    </message>
    <message>
        <source>Start care</source>
        <translation>ケアを開始</translation>
    </message>
    <message>
        <source>Static Icon</source>
        <translation>静止アイコン</translation>
    </message>
    <message>
        <source>Still Picture</source>
        <translation>静止画面</translation>
    </message>
    <message>
        <source>Stop service</source>
        <translation>サービス停止</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>ストップウォッチ</translation>
    </message>
    <message>
        <source>Stopwatch Place</source>
        <translation>ストップウォッチの位置</translation>
    </message>
    <message>
        <source>Stopwatch Time</source>
        <translation>ストップウォッチの時間</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>強</translation>
    </message>
    <message>
        <source>Super Resolution</source>
        <translation>超解像</translation>
    </message>
    <message>
        <source>Super Resolution: makes blurred or enlarged pictures look sharper. 0 = off.</source>
        <translation>超解像: ぼやけた映像や拡大した映像をくっきり見せます。0&#xa0;でオフです。</translation>
    </message>
    <message>
        <source>Switch off</source>
        <translation>オフにする</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>オンにする</translation>
    </message>
    <message>
        <source>Switch this row on to change its keys.</source>
        <translation>キーを変えるには、この行をオンにしてください。</translation>
    </message>
    <message>
        <source>Switched off.</source>
        <translation>オフです。</translation>
    </message>
    <message>
        <source>Switched on.</source>
        <translation>オンです。</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>システム設定</translation>
    </message>
    <message>
        <source>Take one that goes with the wall: light on a coloured wall looks different.</source>
        <translation>壁に合う色を選んでください。色のある壁では見え方が変わります。</translation>
    </message>
    <message>
        <source>Take the corner in which nothing stands that you need.</source>
        <translation>必要なものが表示されない隅を選んでください。</translation>
    </message>
    <message>
        <source>Taken by another</source>
        <translation>他で使用</translation>
    </message>
    <message>
        <source>Takes blue out of the picture, which is easier on the eyes. 0 = off.</source>
        <translation>映像の青い光を減らし、目の負担を和らげます。0&#xa0;でオフです。</translation>
    </message>
    <message>
        <source>Tapering</source>
        <translation>先細り</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>タスクバー</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>テンプレート</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Text Mode</source>
        <translation>テキストモード</translation>
    </message>
    <message>
        <source>The APP will reload data when switching machines.</source>
        <translation>モニターを切り替えると、アプリはデータを再読み込みします。</translation>
    </message>
    <message>
        <source>The APP will restart automatically when switching languages.</source>
        <translation>言語を切り替えると、アプリが再起動します。</translation>
    </message>
    <message>
        <source>The LED matrix moves with the sound that this computer plays. Close = off, Open = on.</source>
        <translation>LED マトリクスがコンピューターの音に合わせて動きます。</translation>
    </message>
    <message>
        <source>The accessory becomes the next of its models; the button is up while it is the first</source>
        <translation>アクセサリが次のモデルに変わります。最初のモデルの間、ボタンは押されていない状態です</translation>
    </message>
    <message>
        <source>The accessory cannot be reached. What you choose goes to it with the next change.</source>
        <translation>アクセサリに接続できません。選んだ内容は次の変更時に送信されます。</translation>
    </message>
    <message>
        <source>The accessory did not take everything.</source>
        <translation>アクセサリがすべてのデータを受け取れませんでした。</translation>
    </message>
    <message>
        <source>The accessory has it, but Animate Mode cannot show it: %1</source>
        <translation>アクセサリには書き込まれましたが、「アニメーション」に表示できません: %1</translation>
    </message>
    <message>
        <source>The accessory is at work: wait until it has finished, or cancel the work on its page.</source>
        <translation>アクセサリは作業中です。終わるまで待つか、そのページでキャンセルしてください。</translation>
    </message>
    <message>
        <source>The accessory shows what this computer plays as soon as the music mode is open.</source>
        <translation>音楽モードをオンにすると、このコンピューターの再生音がアクセサリに表示されます。</translation>
    </message>
    <message>
        <source>The accessory takes %1 of the %2 frames.</source>
        <translation>%2&#xa0;フレームのうち、アクセサリに入るのは最初の&#xa0;%1&#xa0;フレームです。</translation>
    </message>
    <message>
        <source>The accessory takes no report until the button is released</source>
        <translation>ボタンを戻すまでアクセサリはレポートを受け取りません</translation>
    </message>
    <message>
        <source>The answer to the next read never arrives</source>
        <translation>次の読み取りの応答が届きません</translation>
    </message>
    <message>
        <source>The belt stands still in its colour.</source>
        <translation>ライトバーは色を保ったまま動きません。</translation>
    </message>
    <message>
        <source>The brightest light, for a bright room.</source>
        <translation>最も明るい光です。明るい部屋向けです。</translation>
    </message>
    <message>
        <source>The brightest light, seen across a bright room.</source>
        <translation>最も明るい光です。明るい部屋でも見えます。</translation>
    </message>
    <message>
        <source>The brightness follows the light in the room. Close = off, Open = on.</source>
        <translation>明るさが部屋の明るさに合わせて変わります。</translation>
    </message>
    <message>
        <source>The cable is pulled out at the eighth report from now</source>
        <translation>今から&#xa0;8&#xa0;番目のレポートでケーブルが抜かれます</translation>
    </message>
    <message>
        <source>The cable is pulled out until the button is released</source>
        <translation>ボタンを戻すまでケーブルを抜いた状態にします</translation>
    </message>
    <message>
        <source>The colour of the belt along the lower edge. Auto = runs through all colours.</source>
        <translation>下縁のライトバーの色です。自動&#xa0;= すべての色を順に巡ります。</translation>
    </message>
    <message>
        <source>The colour of the belt at the back of the foot.</source>
        <translation>スタンド後ろ側のライトバーの色です。</translation>
    </message>
    <message>
        <source>The colour of the belt at the front of the foot.</source>
        <translation>スタンド前側のライトバーの色です。</translation>
    </message>
    <message>
        <source>The colour of the light on the desk. White is best for reading and writing.</source>
        <translation>机を照らす光の色です。読書には白が最適です。</translation>
    </message>
    <message>
        <source>The colour of the light on the wall behind the screen.</source>
        <translation>画面の後ろの壁を照らす光の色です。</translation>
    </message>
    <message>
        <source>The colour of the steady light and of the effects. Auto = runs through all colours.</source>
        <translation>通常とエフェクトの色です。自動&#xa0;= すべての色を順に巡ります。</translation>
    </message>
    <message>
        <source>The colours of the cinema.</source>
        <translation>映画館の色です。</translation>
    </message>
    <message>
        <source>The computer and its monitors sleep until the button is released</source>
        <translation>ボタンを戻すまで、コンピューターとモニターはスリープします</translation>
    </message>
    <message>
        <source>The deepest black. A glow may show around bright things.</source>
        <translation>最も深い黒です。明るいものの周りに光のにじみが出ることがあります。</translation>
    </message>
    <message>
        <source>The disk did not take everything.</source>
        <translation>ディスクにすべてを書き込めませんでした。</translation>
    </message>
    <message>
        <source>The drawn frames are not saved. Save them now?</source>
        <translation>描いたフレームは保存されていません。今すぐ保存しますか？</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>ファイルを読み込めません: %1</translation>
    </message>
    <message>
        <source>The file cannot be written: %1</source>
        <translation>ファイルに書き込めません: %1</translation>
    </message>
    <message>
        <source>The file has become too large.</source>
        <translation>ファイルが大きくなりすぎました。</translation>
    </message>
    <message>
        <source>The file holds %1 frames; the first %2 were taken.</source>
        <translation>ファイルには&#xa0;%1&#xa0;フレームあり、最初の&#xa0;%2&#xa0;フレームを読み込みました。</translation>
    </message>
    <message>
        <source>The file holds no whole frame.</source>
        <translation>ファイルに完全なフレームがありません。</translation>
    </message>
    <message>
        <source>The form of the matrix that you have: what is shown is drawn for it.</source>
        <translation>お使いのマトリクスの形です。表示はこの形に合わせて描かれます。</translation>
    </message>
    <message>
        <source>The grey scale of medical pictures.</source>
        <translation>医用画像のグレースケールです。</translation>
    </message>
    <message>
        <source>The hotkey you set is occupied,please reset it again!</source>
        <translation>設定したショートカットキーは既に使用されています。設定し直してください。</translation>
    </message>
    <message>
        <source>The lamp belt along the lower edge and around the foot has a light of its own.</source>
        <translation>下縁とスタンドの周りのライトバーは別に光ります。</translation>
    </message>
    <message>
        <source>The lamp in front lights the desk, the one at the rear the wall: less contrast for tired eyes.</source>
        <translation>前面は机を、背面は壁を照らします。明暗の差が減り、目の疲れを和らげます。</translation>
    </message>
    <message>
        <source>The lamp is dark. Only the picture tells that the monitor is on.</source>
        <translation>ランプは消えます。モニターがオンかどうかは画面だけでわかります。</translation>
    </message>
    <message>
        <source>The lamps behind the screen are dark.</source>
        <translation>画面の後ろのライトは消えます。</translation>
    </message>
    <message>
        <source>The lamps take the colours of the picture&apos;s edges. For films and games.</source>
        <translation>ライトが画面の端の色になります。映画やゲーム向けです。</translation>
    </message>
    <message>
        <source>The language of the monitor&apos;s own menu, not of this tool.</source>
        <translation>モニターのメニューの言語です。このツールの言語ではありません。</translation>
    </message>
    <message>
        <source>The layout has no such zone.</source>
        <translation>レイアウトにその領域はありません。</translation>
    </message>
    <message>
        <source>The left and the right half follow each its own side. For films.</source>
        <translation>左右がそれぞれの側に合わせます。映画向けです。</translation>
    </message>
    <message>
        <source>The light behind the picture is even. Best for text.</source>
        <translation>バックライトが均一になります。文字に最適です。</translation>
    </message>
    <message>
        <source>The light flows along the belt.</source>
        <translation>光がライトバーに沿って流れます。</translation>
    </message>
    <message>
        <source>The light moves by itself. For games and guests.</source>
        <translation>光が自動で動きます。ゲームや来客のときに。</translation>
    </message>
    <message>
        <source>The lighting goes out and comes back with the screen.</source>
        <translation>ライトが画面と一緒に消え、一緒に点きます。</translation>
    </message>
    <message>
        <source>The lighting goes out by itself after this time. Close = it stays on.</source>
        <translation>この時間がたつとライトが自動で消えます。オフ&#xa0;= 点いたままです。</translation>
    </message>
    <message>
        <source>The lighting stays on while the monitor sleeps, as a light for the night.</source>
        <translation>モニターの待機中もライトが点いたままで、常夜灯になります。</translation>
    </message>
    <message>
        <source>The maker&apos;s own tuning.</source>
        <translation>メーカー独自のチューニングです。</translation>
    </message>
    <message>
        <source>The matrix shows the time of day. Close = off, Open = on.</source>
        <translation>マトリクスに時刻を表示します。</translation>
    </message>
    <message>
        <source>The monitor and devices at its HDMI sockets switch each other on and off.</source>
        <translation>モニターと HDMI 端子の機器の電源を連動させます。</translation>
    </message>
    <message>
        <source>The monitor answers nothing until the button is released</source>
        <translation>ボタンを戻すまでモニターは応答しません</translation>
    </message>
    <message>
        <source>The monitor begins by itself when it goes to standby.</source>
        <translation>モニターが待機状態になると自動で始まります。</translation>
    </message>
    <message>
        <source>The monitor comes on faster, but needs more power while it is off.</source>
        <translation>モニターが早くつきますが、オフの間の消費電力が増えます。</translation>
    </message>
    <message>
        <source>The monitor did not confirm this value.</source>
        <translation>モニターがこの値を確認していません。</translation>
    </message>
    <message>
        <source>The monitor did not take &quot;%1&quot;.</source>
        <translation>モニターは「%1」を受け付けませんでした。</translation>
    </message>
    <message>
        <source>The monitor did not take the reset.</source>
        <translation>モニターはリセットを受け付けませんでした。</translation>
    </message>
    <message>
        <source>The monitor did not take the size.</source>
        <translation>モニターはサイズを受け付けませんでした。</translation>
    </message>
    <message>
        <source>The monitor did not take this setting.</source>
        <translation>モニターがこの設定を受け付けませんでした。</translation>
    </message>
    <message>
        <source>The monitor does not answer; the reading was given up.</source>
        <translation>モニターが応答しないため、読み取りを中止しました。</translation>
    </message>
    <message>
        <source>The monitor does not remind you.</source>
        <translation>モニターはお知らせしません。</translation>
    </message>
    <message>
        <source>The monitor finds out which range the computer sends.</source>
        <translation>コンピューターが送る範囲をモニターが判別します。</translation>
    </message>
    <message>
        <source>The monitor from behind, with its lamps</source>
        <translation>モニターの背面とライト</translation>
    </message>
    <message>
        <source>The monitor has a value that is none of these.</source>
        <translation>モニターの値はこの一覧にありません。</translation>
    </message>
    <message>
        <source>The monitor has not told this value yet.</source>
        <translation>この値はまだモニターから読み取れていません。</translation>
    </message>
    <message>
        <source>The monitor has not told when the next care is due.</source>
        <translation>次のケアの時期はモニターからまだ伝えられていません。</translation>
    </message>
    <message>
        <source>The monitor has not told yet which functions it has.</source>
        <translation>モニターはまだ機能の一覧を伝えていません。</translation>
    </message>
    <message>
        <source>The monitor is changing its scene mode.</source>
        <translation>モニターがシーンモードを切り替えています。</translation>
    </message>
    <message>
        <source>The monitor itself says on the screen that care is due.</source>
        <translation>ケアの時期になると、モニター自身が画面で知らせます。</translation>
    </message>
    <message>
        <source>The monitor keeps pace with the game: no torn or jerky pictures. Game Rush must be off.</source>
        <translation>ゲームの描画に合わせ、映像の乱れやカクつきを防ぎます。「ゲームラッシュ」はオフにしてください。</translation>
    </message>
    <message>
        <source>The monitor notices when its screen is turned upright. Close = off, Open = on.</source>
        <translation>画面が縦向きにされたことをモニターが検知します。</translation>
    </message>
    <message>
        <source>The monitor reminds you each time that this has passed. Look far away for a minute then.</source>
        <translation>この時間が過ぎるたびにモニターがお知らせします。1&#xa0;分ほど遠くを見てください。</translation>
    </message>
    <message>
        <source>The monitor takes no value until the button is released</source>
        <translation>ボタンを戻すまでモニターは値を受け付けません</translation>
    </message>
    <message>
        <source>The monitor that this was about is no longer in use. Nothing was sent.</source>
        <translation>対象だったモニターは現在使用されていません。何も送信していません。</translation>
    </message>
    <message>
        <source>The monitor took only a part of the colour: its lamps now show another one.</source>
        <translation>モニターは色の一部だけを受け付けました。いまは別の色で光っています。</translation>
    </message>
    <message>
        <source>The monitor uses less power. Close = off, Level2 saves the most.</source>
        <translation>モニターの消費電力を減らします。「レベル&#xa0;2」が最も節電になります。</translation>
    </message>
    <message>
        <source>The next care is due after %1 more hours of use.</source>
        <translation>あと&#xa0;%1&#xa0;時間使うと次のケアの時期です。</translation>
    </message>
    <message>
        <source>The next client is not initialised</source>
        <translation>次のクライアントは初期化されません</translation>
    </message>
    <message>
        <source>The next packet cannot be fetched</source>
        <translation>次のパケットを取得できません</translation>
    </message>
    <message>
        <source>The next packet is refused, as if the one before were still held</source>
        <translation>前のパケットが保持されたままのように、次のパケットを拒否します</translation>
    </message>
    <message>
        <source>The page %1 could not be opened.</source>
        <translation>ページ&#xa0;%1&#xa0;を開けませんでした。</translation>
    </message>
    <message>
        <source>The picture as the factory set it.</source>
        <translation>工場出荷時の画質です。</translation>
    </message>
    <message>
        <source>The picture goes black for about 6 minutes, and the monitor must stay on. Begin now?</source>
        <translation>画面が約&#xa0;6&#xa0;分間黒くなります。その間モニターの電源は切らないでください。今すぐ始めますか？</translation>
    </message>
    <message>
        <source>The picture stays where it is.</source>
        <translation>画面は動きません。</translation>
    </message>
    <message>
        <source>The program could not be restarted. It goes on as it was.</source>
        <translation>アプリを再起動できませんでした。このまま動作を続けます。</translation>
    </message>
    <message>
        <source>The program has not registered this combination.</source>
        <translation>アプリはこの組み合わせを登録していません。</translation>
    </message>
    <message>
        <source>The program has this combination already.</source>
        <translation>この組み合わせは既に登録されています。</translation>
    </message>
    <message>
        <source>The program heard it.</source>
        <translation>アプリが受け取りました。</translation>
    </message>
    <message>
        <source>The recording could not be begun: %1</source>
        <translation>記録を開始できませんでした: %1</translation>
    </message>
    <message>
        <source>The report is on the clipboard. It names no files, programs or users.</source>
        <translation>レポートをクリップボードにコピーしました。ファイル、アプリ、ユーザーの名前は含まれません。</translation>
    </message>
    <message>
        <source>The selected display is unsupported or the signal line is disconnected.</source>
        <translation>選択したディスプレイは対応していないか、信号ケーブルが接続されていません。</translation>
    </message>
    <message>
        <source>The sharpest motion for shooters.</source>
        <translation>シューティングゲームに適した最もくっきりした動きです。</translation>
    </message>
    <message>
        <source>The sharpest movement, for the fastest games.</source>
        <translation>最もくっきりした動きです。最も速いゲームに向いています。</translation>
    </message>
    <message>
        <source>The simulated monitor that is shown here</source>
        <translation>ここに表示するモニター</translation>
    </message>
    <message>
        <source>The smallest one. Covers least.</source>
        <translation>最小で、最も隠しません。</translation>
    </message>
    <message>
        <source>The socket that has a signal. For one computer, or one at a time.</source>
        <translation>信号のある端子を使います。コンピューターが&#xa0;1&#xa0;台、または&#xa0;1&#xa0;台ずつ使うとき向けです。</translation>
    </message>
    <message>
        <source>The sound as it comes, for music and all else.</source>
        <translation>元の音のままです。音楽などすべてに向きます。</translation>
    </message>
    <message>
        <source>The sound of the monitor. Audio Mute: Close = sound, Open = silence. Convo = for voices.</source>
        <translation>モニターの音声です。「ミュート」がオンのときは音が出ません。「会話」は人の声に向いています。</translation>
    </message>
    <message>
        <source>The sound output cannot be listened to. It is tried again every few seconds.</source>
        <translation>音声出力を取得できません。数秒ごとに再試行します。</translation>
    </message>
    <message>
        <source>The standard of the web.</source>
        <translation>ウェブの標準色です。</translation>
    </message>
    <message>
        <source>The system did not allow &quot;%1&quot; to be changed.</source>
        <translation>システムにより「%1」の変更が許可されませんでした。</translation>
    </message>
    <message>
        <source>The system did not move the window.</source>
        <translation>システムがウィンドウを移動しませんでした。</translation>
    </message>
    <message>
        <source>The system does not tell which screen the window is on.</source>
        <translation>ウィンドウがどの画面にあるか、システムから取得できません。</translation>
    </message>
    <message>
        <source>The system&apos;s audio service is down until the button is released</source>
        <translation>ボタンを戻すまで、システムの音声サービスは停止します</translation>
    </message>
    <message>
        <source>The text is too long: %1 of its %2 characters fit.</source>
        <translation>テキストが長すぎます。%2&#xa0;文字のうち先頭の&#xa0;%1&#xa0;文字だけが収まります。</translation>
    </message>
    <message>
        <source>The upgrade program %1 could not be started.</source>
        <translation>更新アプリ&#xa0;%1&#xa0;を起動できませんでした。</translation>
    </message>
    <message>
        <source>The upgrade program is running already.</source>
        <translation>更新アプリは既に実行中です。</translation>
    </message>
    <message>
        <source>The usual for web, office, photos and most games.</source>
        <translation>ウェブ、オフィス、写真、多くのゲームの標準です。</translation>
    </message>
    <message>
        <source>The usual light.</source>
        <translation>標準の光です。</translation>
    </message>
    <message>
        <source>The usual white for web, photos and films.</source>
        <translation>ウェブ、写真、映画の標準の白です。</translation>
    </message>
    <message>
        <source>The version of your monitor&apos;s firmware.</source>
        <translation>お使いのモニターのファームウェアのバージョンです。</translation>
    </message>
    <message>
        <source>The white of printed paper.</source>
        <translation>印刷用紙の白です。</translation>
    </message>
    <message>
        <source>The whole belt comes and goes slowly.</source>
        <translation>ライトバー全体がゆっくり明滅します。</translation>
    </message>
    <message>
        <source>The whole belt flashes. Hard to bear beside work.</source>
        <translation>ライトバー全体が点滅します。作業には向きません。</translation>
    </message>
    <message>
        <source>The window cannot be resized.</source>
        <translation>このウィンドウはサイズを変更できません。</translation>
    </message>
    <message>
        <source>The window fills the whole screen: end its full screen first.</source>
        <translation>このウィンドウは全画面表示です。先に全画面表示を終了してください。</translation>
    </message>
    <message>
        <source>The window is minimised.</source>
        <translation>このウィンドウは最小化されています。</translation>
    </message>
    <message>
        <source>The window was not put into a zone, so it has no old place.</source>
        <translation>このウィンドウは領域に配置されていないため、元の位置がありません。</translation>
    </message>
    <message>
        <source>The window&apos;s program does not answer.</source>
        <translation>このウィンドウのアプリが応答しません。</translation>
    </message>
    <message>
        <source>The window&apos;s program has more rights than this one and cannot be moved.</source>
        <translation>このウィンドウのアプリはより高い権限で動いているため、移動できません。</translation>
    </message>
    <message>
        <source>The zone is too small to be cut.</source>
        <translation>この領域は小さすぎて、これ以上分割できません。</translation>
    </message>
    <message>
        <source>There are as many layouts as there can be. Delete one first.</source>
        <translation>レイアウトの数が上限に達しています。先に&#xa0;1&#xa0;つ削除してください。</translation>
    </message>
    <message>
        <source>There is no sound output until the button is released</source>
        <translation>ボタンを戻すまで、音声出力がありません</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>ファイルが見つかりません。</translation>
    </message>
    <message>
        <source>There is no text yet.</source>
        <translation>テキストがまだありません。</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>やり直す操作はありません。</translation>
    </message>
    <message>
        <source>There is nothing to set here yet.</source>
        <translation>ここにはまだ設定できる項目がありません。</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>元に戻す操作はありません。</translation>
    </message>
    <message>
        <source>Thirds</source>
        <translation>3&#xa0;分割</translation>
    </message>
    <message>
        <source>This function has its row already.</source>
        <translation>この機能は既にリストにあります。</translation>
    </message>
    <message>
        <source>This is the light of the mode &quot;Eye Care&quot;.</source>
        <translation>これはモード「アイケア」の光です。</translation>
    </message>
    <message>
        <source>This layout stays as it is. &quot;New layout&quot; makes one of your own of it.</source>
        <translation>このレイアウトは変更できません。「新しいレイアウト」でこれを元に自分用のものを作れます。</translation>
    </message>
    <message>
        <source>This monitor</source>
        <translation>このモニター</translation>
    </message>
    <message>
        <source>This monitor does not have these functions.</source>
        <translation>このモニターにはこれらの機能がありません。</translation>
    </message>
    <message>
        <source>This monitor may not have it; else read everything once.</source>
        <translation>この機種にないか、再読み取りが必要です。</translation>
    </message>
    <message>
        <source>This slider counts while Color Temperature is Night View C.T.</source>
        <translation>このスライダーは、色温度が「夜間色温度」のときに働きます。</translation>
    </message>
    <message>
        <source>This tool says on the desktop that care is due: never over a program that fills the screen.</source>
        <translation>ケアの時期をこのツールがデスクトップで知らせます。全画面のアプリの上には表示しません。</translation>
    </message>
    <message>
        <source>Three columns and three rows.</source>
        <translation>3&#xa0;列&#xa0;3&#xa0;行。</translation>
    </message>
    <message>
        <source>Three columns and two rows.</source>
        <translation>3&#xa0;列&#xa0;2&#xa0;行。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Time to rest your eyes for a while.</source>
        <translation>少し目を休めましょう。</translation>
    </message>
    <message>
        <source>Time, read or write, code, value and what became of it</source>
        <translation>時刻、読み書きの別、コード、値、結果</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>To know how long a round has gone on without looking away.</source>
        <translation>画面から目を離さずに、試合時間がわかります。</translation>
    </message>
    <message>
        <source>To see how the reminder looks.</source>
        <translation>お知らせの見え方を確かめるためのものです。</translation>
    </message>
    <message>
        <source>To see whether a game runs as smoothly as the monitor could show it.</source>
        <translation>ゲームがモニターの性能どおりに滑らかに動いているかがわかります。</translation>
    </message>
    <message>
        <source>To stop in time.</source>
        <translation>遊びすぎを防ぎます。</translation>
    </message>
    <message>
        <source>Today&apos;s automatic changes of this monitor are used up (%1). They go on tomorrow; what you set yourself is not limited.</source>
        <translation>このモニターへの今日の自動変更は上限（%1&#xa0;回）に達しました。続きは明日行います。ご自身での設定に制限はありません。</translation>
    </message>
    <message>
        <source>Tool Settings</source>
        <translation>ツール設定</translation>
    </message>
    <message>
        <source>Tool Version: </source>
        <translation>ツールのバージョン: </translation>
    </message>
    <message>
        <source>Tool language settings</source>
        <translation>ツールの言語設定</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
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
        <translation>最速</translation>
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
        <translation>三分割</translation>
    </message>
    <message>
        <source>Triple Kill</source>
        <translation>トリプルキル</translation>
    </message>
    <message>
        <source>True colours for design work.</source>
        <translation>デザイン作業に適した忠実な色です。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>もう一度</translation>
    </message>
    <message>
        <source>Try again; its scene or another setting may forbid it.</source>
        <translation>シーンや他の設定を確認して再操作してください。</translation>
    </message>
    <message>
        <source>Two columns and two rows.</source>
        <translation>2&#xa0;列&#xa0;2&#xa0;行。</translation>
    </message>
    <message>
        <source>Two tones</source>
        <translation>2&#xa0;つの音</translation>
    </message>
    <message>
        <source>Type the combination here, then press it on the whole desktop</source>
        <translation>ここに組み合わせを入力し、デスクトップ全体で押します</translation>
    </message>
    <message>
        <source>Type the text for the matrix.</source>
        <translation>マトリクスに表示する文字を入力してください。</translation>
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
        <translation>USB 給電</translation>
    </message>
    <message>
        <source>USB Switch</source>
        <translation>USB 切替</translation>
    </message>
    <message>
        <source>Ull-Level1</source>
        <translation>Ull レベル&#xa0;1</translation>
    </message>
    <message>
        <source>Ull-Level2</source>
        <translation>Ull レベル&#xa0;2</translation>
    </message>
    <message>
        <source>Ull-Level3</source>
        <translation>Ull レベル&#xa0;3</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>ケーブルを抜く</translation>
    </message>
    <message>
        <source>Unplugged</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>Uploaded for another form of the matrix.</source>
        <translation>別の形のマトリクス用に書き込まれています。</translation>
    </message>
    <message>
        <source>Use and care of the last five weeks</source>
        <translation>最近&#xa0;5&#xa0;週間の使用とケア</translation>
    </message>
    <message>
        <source>User1</source>
        <translation>ユーザー&#xa0;1</translation>
    </message>
    <message>
        <source>User1 R G B</source>
        <translation>ユーザー&#xa0;1 R G B</translation>
    </message>
    <message>
        <source>User2</source>
        <translation>ユーザー&#xa0;2</translation>
    </message>
    <message>
        <source>User2 R G B</source>
        <translation>ユーザー&#xa0;2 R G B</translation>
    </message>
    <message>
        <source>User3</source>
        <translation>ユーザー&#xa0;3</translation>
    </message>
    <message>
        <source>User3 R G B</source>
        <translation>ユーザー&#xa0;3 R G B</translation>
    </message>
    <message>
        <source>UserB</source>
        <translation>青(B)</translation>
    </message>
    <message>
        <source>UserG</source>
        <translation>緑(G)</translation>
    </message>
    <message>
        <source>UserR</source>
        <translation>赤(R)</translation>
    </message>
    <message>
        <source>V-Position</source>
        <translation>垂直位置</translation>
    </message>
    <message>
        <source>Value before</source>
        <translation>前の値</translation>
    </message>
    <message>
        <source>Very bright middle tones: shows what hides in the dark.</source>
        <translation>中間の階調がとても明るく、暗がりに隠れたものが見えます。</translation>
    </message>
    <message>
        <source>Very cool, bluish white, as on old screens.</source>
        <translation>古い画面のような、青みがかったとても冷たい白です。</translation>
    </message>
    <message>
        <source>Victory</source>
        <translation>勝利</translation>
    </message>
    <message>
        <source>Visibly darker, for long days with the same windows.</source>
        <translation>はっきり暗くします。一日中同じウィンドウを使うときに向いています。</translation>
    </message>
    <message>
        <source>Vivid colours for animation.</source>
        <translation>アニメーションに適した鮮やかな色です。</translation>
    </message>
    <message>
        <source>Voices come forward, for talks and conferences.</source>
        <translation>人の声を際立たせます。通話や会議向けです。</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Waits long before it dims: good for reading.</source>
        <translation>暗くするまで長く待ちます。読書に向いています。</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>暖色</translation>
    </message>
    <message>
        <source>Warm white for the evening. The slider below says how warm.</source>
        <translation>夜向けの暖かい白です。どのくらい暖かいかは下のスライダーで決めます。</translation>
    </message>
    <message>
        <source>Warm white, as paper under the lamps of a print shop.</source>
        <translation>印刷所の照明で見る紙のような、暖かい白です。</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>水流</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>ウェーブ</translation>
    </message>
    <message>
        <source>Web(sRGB)</source>
        <translation>ウェブ(sRGB)</translation>
    </message>
    <message>
        <source>What goes wrong</source>
        <translation>起こす障害</translation>
    </message>
    <message>
        <source>What is asked and answered is recorded in %1</source>
        <translation>要求と応答を&#xa0;%1&#xa0;に記録しています</translation>
    </message>
    <message>
        <source>What it looks like</source>
        <translation>見え方</translation>
    </message>
    <message>
        <source>What most visitors of a page see.</source>
        <translation>多くの閲覧者が目にする色です。</translation>
    </message>
    <message>
        <source>What moves looks a little sharper. Good for films.</source>
        <translation>動くものが少しくっきりします。映画に向いています。</translation>
    </message>
    <message>
        <source>What moves looks clearly sharper. Good for sport.</source>
        <translation>動くものがはっきり見えます。スポーツに向いています。</translation>
    </message>
    <message>
        <source>What plays</source>
        <translation>再生内容</translation>
    </message>
    <message>
        <source>Wheel: one step · Tab, arrows · Esc closes</source>
        <translation>ホイールで&#xa0;1&#xa0;段階 · Tab・矢印キー · Esc で閉じる</translation>
    </message>
    <message>
        <source>When the lighting goes out by itself, and whether it stays on in standby.</source>
        <translation>ライトが自動で消える時間と、待機中も点灯するかどうか。</translation>
    </message>
    <message>
        <source>Where others pass by, or a hand easily touches the monitor&apos;s buttons.</source>
        <translation>人が通る場所や、モニターのボタンに手が触れやすい場所で使います。</translation>
    </message>
    <message>
        <source>Which cable the monitor&apos;s USB sockets go to, and how fast the picture comes through DP or Type-C.</source>
        <translation>モニターの USB 端子をどのケーブルにつなぐかと、DP または Type-C の映像の速さです。</translation>
    </message>
    <message>
        <source>Which events of a game the matrix celebrates, how often and how bright.</source>
        <translation>マトリクスが祝うゲームのイベントと、その間隔と輝度です。</translation>
    </message>
    <message>
        <source>Which of the uploaded animations the matrix plays.</source>
        <translation>マトリクスが再生する、書き込み済みのアニメーションを選びます。</translation>
    </message>
    <message>
        <source>Which of your monitors this tool sets.</source>
        <translation>このツールで設定するモニターを選びます。</translation>
    </message>
    <message>
        <source>Which socket the picture comes from. Auto = the one that has a signal.</source>
        <translation>映像を受け取る端子です。「自動」は信号のある端子を選びます。</translation>
    </message>
    <message>
        <source>Which way round the light runs, as seen from behind.</source>
        <translation>後ろから見た、光の回る向きです。</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>With the factory parameters</source>
        <translation>工場出荷時の設定</translation>
    </message>
    <message>
        <source>With your own parameters</source>
        <translation>ユーザー設定</translation>
    </message>
    <message>
        <source>Write Animate</source>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Write Data</source>
        <translation>データ書き込み</translation>
    </message>
    <message>
        <source>Written today</source>
        <translation>本日の書き込み</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>Your own picture. Changes are sent to the monitor as you make them.</source>
        <translation>お好みの画質です。変更はすぐモニターに送信されます。</translation>
    </message>
    <message>
        <source>Zelmar</source>
        <translation>Zelmar</translation>
    </message>
    <message>
        <source>Zelmar Mode</source>
        <translation>Zelmar モード</translation>
    </message>
    <message>
        <source>Zone %1 of %2</source>
        <translation>領域&#xa0;%1/%2</translation>
    </message>
    <message>
        <source>Zone before</source>
        <translation>前の領域</translation>
    </message>
    <message>
        <source>Zones for %1</source>
        <translation>%1&#xa0;の領域</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>倍率</translation>
    </message>
    <message>
        <source>adjusted</source>
        <translation>調整済み</translation>
    </message>
    <message>
        <source>all succeeded</source>
        <translation>すべて成功</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>deaf</source>
        <translation>応答停止</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>ファームウェア&#xa0;%1</translation>
    </message>
    <message>
        <source>garbled</source>
        <translation>データ破損</translation>
    </message>
    <message>
        <source>https://</source>
        <translation>https://</translation>
    </message>
    <message>
        <source>lamp off</source>
        <translation>ランプ消灯</translation>
    </message>
    <message>
        <source>live</source>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>消失</translation>
    </message>
    <message>
        <source>made %1</source>
        <translation>%1&#xa0;年製</translation>
    </message>
    <message>
        <source>made %1, week %2</source>
        <translation>%1&#xa0;年第&#xa0;%2&#xa0;週製</translation>
    </message>
    <message>
        <source>mode %1</source>
        <translation>モード&#xa0;%1</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <source>no monitor</source>
        <translation>モニターなし</translation>
    </message>
    <message>
        <source>none needed</source>
        <translation>再試行なし</translation>
    </message>
    <message>
        <source>not a WAV file of 16-bit or floating-point samples</source>
        <translation>16&#xa0;ビットまたは浮動小数点の WAV ファイルではありません</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>nothing asked yet</source>
        <translation>まだ要求なし</translation>
    </message>
    <message>
        <source>now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>off</source>
        <translation>消灯</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>on</source>
        <translation>点灯</translation>
    </message>
    <message>
        <source>open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>拒否</translation>
    </message>
    <message>
        <source>sRGB</source>
        <translation>sRGB</translation>
    </message>
    <message>
        <source>sRGB Mode</source>
        <translation>sRGB モード</translation>
    </message>
    <message>
        <source>sRGB primaries with gamma 2.2.</source>
        <translation>sRGB の三原色、ガンマ&#xa0;2.2&#xa0;です。</translation>
    </message>
    <message>
        <source>sRGB(2.2)</source>
        <translation>sRGB(2.2)</translation>
    </message>
    <message>
        <source>sRGB(2.2) Mode</source>
        <translation>sRGB(2.2) モード</translation>
    </message>
    <message>
        <source>serial %1</source>
        <translation>シリアル番号&#xa0;%1</translation>
    </message>
    <message>
        <source>slowest %1</source>
        <translation>最遅&#xa0;%1</translation>
    </message>
    <message>
        <source>text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>unexpected</source>
        <translation>想定外</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>unplugged</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>upload</source>
        <translation>アップロード済み</translation>
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
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>File Folder</source>
        <comment>Match Windows Explorer</comment>
        <translation>ファイル フォルダー</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <comment>All other platforms</comment>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>増やす(&amp;S)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>減らす(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QColorDialog</name>
    <message>
        <source>&amp;Add to Custom Colors</source>
        <translation>カスタムカラーに追加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Basic colors</source>
        <translation>基本の色(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Custom colors</source>
        <translation>カスタムカラー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>緑(&amp;G):</translation>
    </message>
    <message>
        <source>&amp;HTML:</source>
        <translation>&amp;HTML:</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Color</source>
        <translation>画面の色を取得(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Red:</source>
        <translation>赤(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Sat:</source>
        <translation>彩度(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Val:</source>
        <translation>明度(&amp;V):</translation>
    </message>
    <message>
        <source>A&amp;lpha channel:</source>
        <translation>アルファチャンネル(&amp;L):</translation>
    </message>
    <message>
        <source>Bl&amp;ue:</source>
        <translation>青(&amp;U):</translation>
    </message>
    <message>
        <source>Cursor at %1, %2
Press ESC to cancel</source>
        <translation>カーソル位置&#xa0;%1, %2
Esc キーでキャンセル</translation>
    </message>
    <message>
        <source>Hu&amp;e:</source>
        <translation>色相(&amp;E):</translation>
    </message>
    <message>
        <source>Select Color</source>
        <translation>色の選択</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
フォルダーが見つかりません。
フォルダー名が正しいか確認してください。</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
ファイルが見つかりません。
ファイル名が正しいか確認してください。</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1&#xa0;は既に存在します。
置き換えますか？</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>選択(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新しいフォルダー(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>名前の変更(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>「%1」は書き込み禁止です。
それでも削除しますか？</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>詳細表示に切り替え</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>一覧表示に切り替え</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>フォルダーを削除できませんでした。</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新しいフォルダーの作成</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>新しいフォルダーを作成します</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>詳細表示</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>フォルダー:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>ファイル名(&amp;N):</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>ファイルの種類:</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>前に戻ります</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>次に進みます</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>1&#xa0;つ上のフォルダーに移動します</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>一覧表示</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>場所とブックマークの一覧</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>場所:</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新しいフォルダー</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>1&#xa0;つ上のフォルダー</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>最近使った場所</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>表示 </translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>隠しファイルを表示(&amp;H)</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>サイドバー</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>更新日時</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>PC</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Type</source>
        <comment>All other platforms</comment>
        <translation>種類</translation>
    </message>
</context>
<context>
    <name>QKeySequenceEdit</name>
    <message>
        <source>Press shortcut</source>
        <translation>キーを押してください</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
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
        <translation>下端</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左端</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>1&#xa0;ページ下</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>1&#xa0;ページ左</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>1&#xa0;ページ右</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>1&#xa0;ページ上</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右端</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>下へスクロール</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>ここまでスクロール</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>左へスクロール</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>右へスクロール</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>上へスクロール</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上端</translation>
    </message>
</context>
<context>
    <name>QSidebar</name>
    <message>
        <source>Remove</source>
        <translation>取り除く</translation>
    </message>
</context>
<context>
    <name>QTabBar</name>
    <message>
        <source>Scroll Left</source>
        <translation>左へスクロール</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>右へスクロール</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
</TS>
