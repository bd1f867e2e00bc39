<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>         Disable</source>
        <translation>         Disable</translation>
    </message>
    <message>
        <source>         Enable</source>
        <translation>         Enable</translation>
    </message>
    <message>
        <source>        Custom</source>
        <translation>        Custom</translation>
    </message>
    <message>
        <source>        Default</source>
        <translation>        Default</translation>
    </message>
    <message>
        <source> already enabled!</source>
        <translation> already enabled!</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 %, from low to high</source>
        <translation>%1 %, from low to high</translation>
    </message>
    <message>
        <source>%1 cannot be written. Nothing was changed.</source>
        <translation>%1 cannot be written. Nothing was changed.</translation>
    </message>
    <message>
        <source>%1 cannot be written: what is set here lasts until the program ends.</source>
        <translation>%1 cannot be written: what is set here lasts until the program ends.</translation>
    </message>
    <message>
        <source>%1 does not have &quot;%2&quot;.</source>
        <translation>%1 does not have &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 frames a second</source>
        <translation>%1 frames a second</translation>
    </message>
    <message>
        <source>%1 goes to the level before.</source>
        <translation>%1 goes to the level before.</translation>
    </message>
    <message>
        <source>%1 goes to the next level.</source>
        <translation>%1 goes to the next level.</translation>
    </message>
    <message>
        <source>%1 has no OLED panel to care for.</source>
        <translation>%1 has no OLED panel to care for.</translation>
    </message>
    <message>
        <source>%1 has no game functions.</source>
        <translation>%1 has no game functions.</translation>
    </message>
    <message>
        <source>%1 holds no saved drawing. It stays as it is until you save.</source>
        <translation>%1 holds no saved drawing. It stays as it is until you save.</translation>
    </message>
    <message>
        <source>%1 hours of use counted</source>
        <translation>%1 hours of use counted</translation>
    </message>
    <message>
        <source>%1 hours of use since the last care</source>
        <translation>%1 hours of use since the last care</translation>
    </message>
    <message>
        <source>%1 in all, %2 by itself today</source>
        <translation>%1 in all, %2 by itself today</translation>
    </message>
    <message>
        <source>%1 is in the list already.</source>
        <translation>%1 is in the list already.</translation>
    </message>
    <message>
        <source>%1 is taken by another program or function and does nothing here.</source>
        <translation>%1 is taken by another program or function and does nothing here.</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 moves it to the corner before.</source>
        <translation>%1 moves it to the corner before.</translation>
    </message>
    <message>
        <source>%1 moves it to the next corner.</source>
        <translation>%1 moves it to the next corner.</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>%1 of %2 lost</source>
        <translation>%1 of %2 lost</translation>
    </message>
    <message>
        <source>%1 of %2 values were told, in %3 s.</source>
        <translation>%1 of %2 values were told, in %3 s.</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 pixels</translation>
    </message>
    <message>
        <source>%1 requests are recorded in %2</source>
        <translation>%1 requests are recorded in %2</translation>
    </message>
    <message>
        <source>%1 rows, %2 cells, %3 on</source>
        <translation>%1 rows, %2 cells, %3 on</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>%1 s left</translation>
    </message>
    <message>
        <source>%1 steps the colour.</source>
        <translation>%1 steps the colour.</translation>
    </message>
    <message>
        <source>%1 steps the corner.</source>
        <translation>%1 steps the corner.</translation>
    </message>
    <message>
        <source>%1 steps the length.</source>
        <translation>%1 steps the length.</translation>
    </message>
    <message>
        <source>%1 steps the shape.</source>
        <translation>%1 steps the shape.</translation>
    </message>
    <message>
        <source>%1 steps the time.</source>
        <translation>%1 steps the time.</translation>
    </message>
    <message>
        <source>%1 succeeded</source>
        <translation>%1 succeeded</translation>
    </message>
    <message>
        <source>%1 switches it off.</source>
        <translation>%1 switches it off.</translation>
    </message>
    <message>
        <source>%1 switches it on.</source>
        <translation>%1 switches it on.</translation>
    </message>
    <message>
        <source>%1 was changed to &quot;%2&quot;.</source>
        <translation>%1 was changed to &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 was not taken</source>
        <translation>%1 was not taken</translation>
    </message>
    <message>
        <source>%1 was not told</source>
        <translation>%1 was not told</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 · protocol faults: %2 · open handles: %3</source>
        <translation>%1 · protocol faults: %2 · open handles: %3</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, chunk %2 of %3</source>
        <translation>%1, chunk %2 of %3</translation>
    </message>
    <message>
        <source>%1, frames: %2</source>
        <translation>%1, frames: %2</translation>
    </message>
    <message>
        <source>%1. The window keeps a size of its own.</source>
        <translation>%1. The window keeps a size of its own.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>1 Hour</source>
        <translation>1 Hour</translation>
    </message>
    <message>
        <source>1.5 Hour</source>
        <translation>1.5 Hour</translation>
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
        <translation>10 min</translation>
    </message>
    <message>
        <source>12 Hour</source>
        <translation>12 Hour</translation>
    </message>
    <message>
        <source>15 min</source>
        <translation>15 min</translation>
    </message>
    <message>
        <source>2 Hour</source>
        <translation>2 Hour</translation>
    </message>
    <message>
        <source>2 Zone Rhythm</source>
        <translation>2 Zone Rhythm</translation>
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
        <translation>2.5 Hour</translation>
    </message>
    <message>
        <source>2.6</source>
        <translation>2.6</translation>
    </message>
    <message>
        <source>24 Hour</source>
        <translation>24 Hour</translation>
    </message>
    <message>
        <source>3 Hour</source>
        <translation>3 Hour</translation>
    </message>
    <message>
        <source>3.5 Hour</source>
        <translation>3.5 Hour</translation>
    </message>
    <message>
        <source>30 min</source>
        <translation>30 min</translation>
    </message>
    <message>
        <source>30s</source>
        <translation>30s</translation>
    </message>
    <message>
        <source>4 Hour</source>
        <translation>4 Hour</translation>
    </message>
    <message>
        <source>40 min</source>
        <translation>40 min</translation>
    </message>
    <message>
        <source>5.4G</source>
        <translation>5.4G</translation>
    </message>
    <message>
        <source>50 min</source>
        <translation>50 min</translation>
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
        <translation>60 min</translation>
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
        <translation>8 Hour</translation>
    </message>
    <message>
        <source>8.1G</source>
        <translation>8.1G</translation>
    </message>
    <message>
        <source>90 min</source>
        <translation>90 min</translation>
    </message>
    <message>
        <source>9300K</source>
        <translation>9300K</translation>
    </message>
    <message>
        <source>&lt;font color=white&gt;Getting Disp Dev Infor...&lt;/font&gt;</source>
        <translation>&lt;font color=white&gt;Getting Disp Dev Infor...&lt;/font&gt;</translation>
    </message>
    <message>
        <source>A WAV file</source>
        <translation>A WAV file</translation>
    </message>
    <message>
        <source>A balanced picture for every day.</source>
        <translation>A balanced picture for every day.</translation>
    </message>
    <message>
        <source>A calm white on the wall, for long evenings at the screen.</source>
        <translation>A calm white on the wall, for long evenings at the screen.</translation>
    </message>
    <message>
        <source>A circle, for what is in the middle.</source>
        <translation>A circle, for what is in the middle.</translation>
    </message>
    <message>
        <source>A colour that can be seen to change is sent, at most one a second.</source>
        <translation>A colour that can be seen to change is sent, at most one a second.</translation>
    </message>
    <message>
        <source>A colour that few games have themselves.</source>
        <translation>A colour that few games have themselves.</translation>
    </message>
    <message>
        <source>A crosshair that takes the colour that stands out and opens while the picture moves.</source>
        <translation>A crosshair that takes the colour that stands out and opens while the picture moves.</translation>
    </message>
    <message>
        <source>A dark rim: the eye stays in the middle.</source>
        <translation>A dark rim: the eye stays in the middle.</translation>
    </message>
    <message>
        <source>A diagonal and the lines that meet it: for pictures with a slant.</source>
        <translation>A diagonal and the lines that meet it: for pictures with a slant.</translation>
    </message>
    <message>
        <source>A dim picture for dark rooms.</source>
        <translation>A dim picture for dark rooms.</translation>
    </message>
    <message>
        <source>A faint light, for a dark room.</source>
        <translation>A faint light, for a dark room.</translation>
    </message>
    <message>
        <source>A light runs around the ring.</source>
        <translation>A light runs around the ring.</translation>
    </message>
    <message>
        <source>A line of text that the matrix shows, standing or scrolling.</source>
        <translation>A line of text that the matrix shows, standing or scrolling.</translation>
    </message>
    <message>
        <source>A little above the middle, as games need it that look over a shoulder.</source>
        <translation>A little above the middle, as games need it that look over a shoulder.</translation>
    </message>
    <message>
        <source>A little below the middle, for a view that is tilted up.</source>
        <translation>A little below the middle, for a view that is tilted up.</translation>
    </message>
    <message>
        <source>A little cooler than usual.</source>
        <translation>A little cooler than usual.</translation>
    </message>
    <message>
        <source>A little darker, and a little cheaper.</source>
        <translation>A little darker, and a little cheaper.</translation>
    </message>
    <message>
        <source>A little darker: hardly to be seen, for normal work.</source>
        <translation>A little darker: hardly to be seen, for normal work.</translation>
    </message>
    <message>
        <source>A little faster, without side effects.</source>
        <translation>A little faster, without side effects.</translation>
    </message>
    <message>
        <source>A little warm, as light at noon.</source>
        <translation>A little warm, as light at noon.</translation>
    </message>
    <message>
        <source>A mixture of your own: set its red, green and blue with the sliders below.</source>
        <translation>A mixture of your own: set its red, green and blue with the sliders below.</translation>
    </message>
    <message>
        <source>A point of light runs along the belt, like a bead.</source>
        <translation>A point of light runs along the belt, like a bead.</translation>
    </message>
    <message>
        <source>A protractor around the middle, to measure angles.</source>
        <translation>A protractor around the middle, to measure angles.</translation>
    </message>
    <message>
        <source>A quarter of the screen&apos;s width: hides least of the first input.</source>
        <translation>A quarter of the screen&apos;s width: hides least of the first input.</translation>
    </message>
    <message>
        <source>A shade at the rim that is hardly noticed.</source>
        <translation>A shade at the rim that is hardly noticed.</translation>
    </message>
    <message>
        <source>A sheet as large as you set it above.</source>
        <translation>A sheet as large as you set it above.</translation>
    </message>
    <message>
        <source>A sheet of 125 × 176 mm, as of a paperback.</source>
        <translation>A sheet of 125 × 176 mm, as of a paperback.</translation>
    </message>
    <message>
        <source>A sheet of 176 × 250 mm, for books and brochures.</source>
        <translation>A sheet of 176 × 250 mm, for books and brochures.</translation>
    </message>
    <message>
        <source>A sheet of 210 × 297 mm, upright, in the middle of the screen.</source>
        <translation>A sheet of 210 × 297 mm, upright, in the middle of the screen.</translation>
    </message>
    <message>
        <source>A soft page for long texts.</source>
        <translation>A soft page for long texts.</translation>
    </message>
    <message>
        <source>A sweep</source>
        <translation>A sweep</translation>
    </message>
    <message>
        <source>A third of the screen&apos;s width.</source>
        <translation>A third of the screen&apos;s width.</translation>
    </message>
    <message>
        <source>A tone</source>
        <translation>A tone</translation>
    </message>
    <message>
        <source>A very dark rim, for games that play in the middle.</source>
        <translation>A very dark rim, for games that play in the middle.</translation>
    </message>
    <message>
        <source>A white behind the screen that spares the eyes. Warm in the evening, cold by day.</source>
        <translation>A white behind the screen that spares the eyes. Warm in the evening, cold by day.</translation>
    </message>
    <message>
        <source>A wide gamut for photographs.</source>
        <translation>A wide gamut for photographs.</translation>
    </message>
    <message>
        <source>A wide gamut under a D50 light.</source>
        <translation>A wide gamut under a D50 light.</translation>
    </message>
    <message>
        <source>AI Dual Mode</source>
        <translation>AI Dual Mode</translation>
    </message>
    <message>
        <source>Accessory</source>
        <translation>Accessory</translation>
    </message>
    <message>
        <source>Adaptive-Sync</source>
        <translation>Adaptive-Sync</translation>
    </message>
    <message>
        <source>Add Frame</source>
        <translation>Add Frame</translation>
    </message>
    <message>
        <source>Add Scence</source>
        <translation>Add Scence</translation>
    </message>
    <message>
        <source>Add a frame first.</source>
        <translation>Add a frame first.</translation>
    </message>
    <message>
        <source>Adobe</source>
        <translation>Adobe</translation>
    </message>
    <message>
        <source>Adobe Mode</source>
        <translation>Adobe Mode</translation>
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
        <translation>After how many hours of use the next care is due.</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alignment</translation>
    </message>
    <message>
        <source>Alignment Aid</source>
        <translation>Alignment Aid</translation>
    </message>
    <message>
        <source>Alignment_4</source>
        <translation>Alignment_4</translation>
    </message>
    <message>
        <source>Alignment_6</source>
        <translation>Alignment_6</translation>
    </message>
    <message>
        <source>Alignment_9</source>
        <translation>Alignment_9</translation>
    </message>
    <message>
        <source>All colours at once, which turn around the ring.</source>
        <translation>All colours at once, which turn around the ring.</translation>
    </message>
    <message>
        <source>All file (*.*)</source>
        <translation>All file (*.*)</translation>
    </message>
    <message>
        <source>All lamps come and go slowly. The quietest effect.</source>
        <translation>All lamps come and go slowly. The quietest effect.</translation>
    </message>
    <message>
        <source>All lamps follow sound or screen in one colour.</source>
        <translation>All lamps follow sound or screen in one colour.</translation>
    </message>
    <message>
        <source>All shortcuts rest while the switch above is off.</source>
        <translation>All shortcuts rest while the switch above is off.</translation>
    </message>
    <message>
        <source>Always the opposite of what lies behind it.</source>
        <translation>Always the opposite of what lies behind it.</translation>
    </message>
    <message>
        <source>Always this socket. The screen stays dark while nothing comes from there.</source>
        <translation>Always this socket. The screen stays dark while nothing comes from there.</translation>
    </message>
    <message>
        <source>American broadcasting primaries.</source>
        <translation>American broadcasting primaries.</translation>
    </message>
    <message>
        <source>Angle Ruler</source>
        <translation>Angle Ruler</translation>
    </message>
    <message>
        <source>Angle close</source>
        <translation>Angle close</translation>
    </message>
    <message>
        <source>Animate</source>
        <translation>Animate</translation>
    </message>
    <message>
        <source>Animate Mode</source>
        <translation>Animate Mode</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animations</translation>
    </message>
    <message>
        <source>Another device becomes the default one</source>
        <translation>Another device becomes the default one</translation>
    </message>
    <message>
        <source>Another program registers the combination first</source>
        <translation>Another program registers the combination first</translation>
    </message>
    <message>
        <source>Another program…</source>
        <translation>Another program…</translation>
    </message>
    <message>
        <source>Answer times, last ten minutes</source>
        <translation>Answer times, last ten minutes</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Answers</translation>
    </message>
    <message>
        <source>Application is already running</source>
        <translation>Application is already running</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Arrange the window</source>
        <translation>Arrange the window</translation>
    </message>
    <message>
        <source>Arrangement of the windows</source>
        <translation>Arrangement of the windows</translation>
    </message>
    <message>
        <source>Art Design</source>
        <translation>Art Design</translation>
    </message>
    <message>
        <source>Art Design Mode</source>
        <translation>Art Design Mode</translation>
    </message>
    <message>
        <source>As Auto, with dark parts that stay readable.</source>
        <translation>As Auto, with dark parts that stay readable.</translation>
    </message>
    <message>
        <source>As Auto, with deep shadows as a film wants them.</source>
        <translation>As Auto, with deep shadows as a film wants them.</translation>
    </message>
    <message>
        <source>As bright as you set it.</source>
        <translation>As bright as you set it.</translation>
    </message>
    <message>
        <source>As fast as it goes. Bright rims may follow what moves.</source>
        <translation>As fast as it goes. Bright rims may follow what moves.</translation>
    </message>
    <message>
        <source>As saved: %1 cells a frame, not 1050.</source>
        <translation>As saved: %1 cells a frame, not 1050.</translation>
    </message>
    <message>
        <source>Asked again and told; nothing to do.</source>
        <translation>Asked again and told; nothing to do.</translation>
    </message>
    <message>
        <source>Asked again; nothing to do.</source>
        <translation>Asked again; nothing to do.</translation>
    </message>
    <message>
        <source>Asleep</source>
        <translation>Asleep</translation>
    </message>
    <message>
        <source>Assist</source>
        <translation>Assist</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>Audio Mode</translation>
    </message>
    <message>
        <source>Audio Mute</source>
        <translation>Audio Mute</translation>
    </message>
    <message>
        <source>Audio Settings</source>
        <translation>Audio Settings</translation>
    </message>
    <message>
        <source>Audio Volume</source>
        <translation>Audio Volume</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Auto-L1</source>
        <translation>Auto-L1</translation>
    </message>
    <message>
        <source>Auto-L2</source>
        <translation>Auto-L2</translation>
    </message>
    <message>
        <source>Automatic changes</source>
        <translation>Automatic changes</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Back at its old place</source>
        <translation>Back at its old place</translation>
    </message>
    <message>
        <source>Background running</source>
        <translation>Background running</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Bars</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Basic</translation>
    </message>
    <message>
        <source>Black Level</source>
        <translation>Black Level</translation>
    </message>
    <message>
        <source>Black and white, like paper.</source>
        <translation>Black and white, like paper.</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Bottom Left</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Bottom Right</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Boundary</translation>
    </message>
    <message>
        <source>Breathe</source>
        <translation>Breathe</translation>
    </message>
    <message>
        <source>Bright middle tones, for a bright room.</source>
        <translation>Bright middle tones, for a bright room.</translation>
    </message>
    <message>
        <source>Bright on nearly everything but grass.</source>
        <translation>Bright on nearly everything but grass.</translation>
    </message>
    <message>
        <source>Bright parts shine when the signal has the range for it.</source>
        <translation>Bright parts shine when the signal has the range for it.</translation>
    </message>
    <message>
        <source>Brightens dark scenes. Close = off, Level1 and Level2 = always, Auto-L1 and Auto-L2 = when needed.</source>
        <translation>Brightens dark scenes. Close = off, Level1 and Level2 = always, Auto-L1 and Auto-L2 = when needed.</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>Bring to the front</source>
        <translation>Bring to the front</translation>
    </message>
    <message>
        <source>Brings the monitor&apos;s firmware up to date. Leave the monitor switched on until it has finished.</source>
        <translation>Brings the monitor&apos;s firmware up to date. Leave the monitor switched on until it has finished.</translation>
    </message>
    <message>
        <source>Buffer error</source>
        <translation>Buffer error</translation>
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
        <translation>CAD/CAM Mode</translation>
    </message>
    <message>
        <source>CEC</source>
        <translation>CEC</translation>
    </message>
    <message>
        <source>CR Enhance</source>
        <translation>CR Enhance</translation>
    </message>
    <message>
        <source>CSV file (*.csv);</source>
        <translation>CSV file (*.csv);</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelled.</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was changed.</source>
        <translation>Cancelled. Nothing was changed.</translation>
    </message>
    <message>
        <source>Care Content</source>
        <translation>Care Content</translation>
    </message>
    <message>
        <source>Care Due</source>
        <translation>Care Due</translation>
    </message>
    <message>
        <source>Care Interval</source>
        <translation>Care Interval</translation>
    </message>
    <message>
        <source>Care Mode</source>
        <translation>Care Mode</translation>
    </message>
    <message>
        <source>Care Plan</source>
        <translation>Care Plan</translation>
    </message>
    <message>
        <source>Care Reminder</source>
        <translation>Care Reminder</translation>
    </message>
    <message>
        <source>Care Running</source>
        <translation>Care Running</translation>
    </message>
    <message>
        <source>Care begins only when you start it.</source>
        <translation>Care begins only when you start it.</translation>
    </message>
    <message>
        <source>Care evens out how the pixels have aged, so that no picture stays visible. It takes about 6 minutes.</source>
        <translation>Care evens out how the pixels have aged, so that no picture stays visible. It takes about 6 minutes.</translation>
    </message>
    <message>
        <source>Care is due.</source>
        <translation>Care is due.</translation>
    </message>
    <message>
        <source>Care is due. The picture goes black for about 6 minutes.</source>
        <translation>Care is due. The picture goes black for about 6 minutes.</translation>
    </message>
    <message>
        <source>Care is due: the monitor begins when it goes to standby.</source>
        <translation>Care is due: the monitor begins when it goes to standby.</translation>
    </message>
    <message>
        <source>Care is running. Leave the monitor on until the picture is back.</source>
        <translation>Care is running. Leave the monitor on until the picture is back.</translation>
    </message>
    <message>
        <source>Care takes about 6 minutes, in which the picture is black. It evens out how the pixels have aged; nothing that is open is lost.</source>
        <translation>Care takes about 6 minutes, in which the picture is black. It evens out how the pixels have aged; nothing that is open is lost.</translation>
    </message>
    <message>
        <source>Caret</source>
        <translation>Caret</translation>
    </message>
    <message>
        <source>Cell Size</source>
        <translation>Cell Size</translation>
    </message>
    <message>
        <source>Changes take effect when you press &quot;%1&quot;.</source>
        <translation>Changes take effect when you press &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>Choose a mode on the left. On now: %1</source>
        <translation>Choose a mode on the left. On now: %1</translation>
    </message>
    <message>
        <source>Choose an entry on the left.</source>
        <translation>Choose an entry on the left.</translation>
    </message>
    <message>
        <source>Choose the controls</source>
        <translation>Choose the controls</translation>
    </message>
    <message>
        <source>Choose the scene again, or read everything once.</source>
        <translation>Choose the scene again, or read everything once.</translation>
    </message>
    <message>
        <source>Chosen, and switched off now.</source>
        <translation>Chosen, and switched off now.</translation>
    </message>
    <message>
        <source>Cinema colours at a D65 white.</source>
        <translation>Cinema colours at a D65 white.</translation>
    </message>
    <message>
        <source>Clean Frame</source>
        <translation>Clean Frame</translation>
    </message>
    <message>
        <source>Clearly darker: for texts, not for pictures.</source>
        <translation>Clearly darker: for texts, not for pictures.</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Clock</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>Clockwise</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Close = dark, Normal = one colour, Effect = it moves, Rhythm = follows sound or screen, Eye Care = calm white.</source>
        <translation>Close = dark, Normal = one colour, Effect = it moves, Rhythm = follows sound or screen, Eye Care = calm white.</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Close window</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Cold</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Color Enchance</source>
        <translation>Color Enchance</translation>
    </message>
    <message>
        <source>Color Enhance</source>
        <translation>Color Enhance</translation>
    </message>
    <message>
        <source>Color Saturation</source>
        <translation>Color Saturation</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>Color Space</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Color Temperature</translation>
    </message>
    <message>
        <source>Colour and brightness follow what this computer plays. For music.</source>
        <translation>Colour and brightness follow what this computer plays. For music.</translation>
    </message>
    <message>
        <source>Combination to press</source>
        <translation>Combination to press</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Composition</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Convo</source>
        <translation>Convo</translation>
    </message>
    <message>
        <source>Cool white: text looks crisp.</source>
        <translation>Cool white: text looks crisp.</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Copy report</translation>
    </message>
    <message>
        <source>Counterclockwise</source>
        <translation>Counterclockwise</translation>
    </message>
    <message>
        <source>Counts down from this. Take as long as you mean to play.</source>
        <translation>Counts down from this. Take as long as you mean to play.</translation>
    </message>
    <message>
        <source>Counts down in a corner, so that you notice how long you have played.</source>
        <translation>Counts down in a corner, so that you notice how long you have played.</translation>
    </message>
    <message>
        <source>Counts up in a corner, to the time that you choose, and begins again.</source>
        <translation>Counts up in a corner, to the time that you choose, and begins again.</translation>
    </message>
    <message>
        <source>Counts up to this and begins again. Take the length of a round.</source>
        <translation>Counts up to this and begins again. Take the length of a round.</translation>
    </message>
    <message>
        <source>Covers least. For a screen that is near.</source>
        <translation>Covers least. For a screen that is near.</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Cross</translation>
    </message>
    <message>
        <source>Crosshair Color</source>
        <translation>Crosshair Color</translation>
    </message>
    <message>
        <source>Crosshair Place</source>
        <translation>Crosshair Place</translation>
    </message>
    <message>
        <source>Crosshair Shape</source>
        <translation>Crosshair Shape</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Custom Color</source>
        <translation>Custom Color</translation>
    </message>
    <message>
        <source>Custom Mode</source>
        <translation>Custom Mode</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>Custom Size</translation>
    </message>
    <message>
        <source>Cut across</source>
        <translation>Cut across</translation>
    </message>
    <message>
        <source>Cut upright</source>
        <translation>Cut upright</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>DCI-P3</source>
        <translation>DCI-P3</translation>
    </message>
    <message>
        <source>DCI-P3 Mode</source>
        <translation>DCI-P3 Mode</translation>
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
        <translation>DICOM Mode</translation>
    </message>
    <message>
        <source>DP Alt Mode</source>
        <translation>DP Alt Mode</translation>
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
        <translation>Dark Programme</translation>
    </message>
    <message>
        <source>Dark and rich in contrast, as films look in a cinema.</source>
        <translation>Dark and rich in contrast, as films look in a cinema.</translation>
    </message>
    <message>
        <source>Dark parts become a little darker.</source>
        <translation>Dark parts become a little darker.</translation>
    </message>
    <message>
        <source>Dark places are always a little brighter.</source>
        <translation>Dark places are always a little brighter.</translation>
    </message>
    <message>
        <source>Dark places are always much brighter.</source>
        <translation>Dark places are always much brighter.</translation>
    </message>
    <message>
        <source>Dark places stay dark.</source>
        <translation>Dark places stay dark.</translation>
    </message>
    <message>
        <source>Dark scenes become a little brighter, bright ones stay as they are.</source>
        <translation>Dark scenes become a little brighter, bright ones stay as they are.</translation>
    </message>
    <message>
        <source>Dark scenes become much brighter, bright ones stay as they are.</source>
        <translation>Dark scenes become much brighter, bright ones stay as they are.</translation>
    </message>
    <message>
        <source>Dark with the Screen</source>
        <translation>Dark with the Screen</translation>
    </message>
    <message>
        <source>Darkens the rim of the screen, so that the middle draws the eye.</source>
        <translation>Darkens the rim of the screen, so that the middle draws the eye.</translation>
    </message>
    <message>
        <source>Darker black, for films and games.</source>
        <translation>Darker black, for films and games.</translation>
    </message>
    <message>
        <source>Deep and high tones are stronger, as in a cinema.</source>
        <translation>Deep and high tones are stronger, as in a cinema.</translation>
    </message>
    <message>
        <source>Deep contrast for films.</source>
        <translation>Deep contrast for films.</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Defeat</source>
        <translation>Defeat</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Delete Frame</source>
        <translation>Delete Frame</translation>
    </message>
    <message>
        <source>Delete layout</source>
        <translation>Delete layout</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>Desktop Reminder</source>
        <translation>Desktop Reminder</translation>
    </message>
    <message>
        <source>Detection Rate</source>
        <translation>Detection Rate</translation>
    </message>
    <message>
        <source>Dims after a few minutes without a change.</source>
        <translation>Dims after a few minutes without a change.</translation>
    </message>
    <message>
        <source>Dims gently, so that changes are hardly noticed.</source>
        <translation>Dims gently, so that changes are hardly noticed.</translation>
    </message>
    <message>
        <source>Dims signs that stand still, such as a station&apos;s logo. Close = off; Low to High are stronger in turn.</source>
        <translation>Dims signs that stand still, such as a station&apos;s logo. Close = off; Low to High are stronger in turn.</translation>
    </message>
    <message>
        <source>Dims soon: spares the panel most.</source>
        <translation>Dims soon: spares the panel most.</translation>
    </message>
    <message>
        <source>Dims the border between bright and dark, as beside black bars. Close = off; Low to High are stronger in turn.</source>
        <translation>Dims the border between bright and dark, as beside black bars. Close = off; Low to High are stronger in turn.</translation>
    </message>
    <message>
        <source>Dims the light behind dark parts, so that black is deeper. Close = off; the others are stronger in turn.</source>
        <translation>Dims the light behind dark parts, so that black is deeper. Close = off; the others are stronger in turn.</translation>
    </message>
    <message>
        <source>Dims the screen while nothing moves. Detection Rate is how soon it notices that.</source>
        <translation>Dims the screen while nothing moves. Detection Rate is how soon it notices that.</translation>
    </message>
    <message>
        <source>Dims the taskbar, which always stands in one place. Close = off; Low to High are stronger in turn.</source>
        <translation>Dims the taskbar, which always stands in one place. Close = off; Low to High are stronger in turn.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Display P3</source>
        <translation>Display P3</translation>
    </message>
    <message>
        <source>Display P3 Mode</source>
        <translation>Display P3 Mode</translation>
    </message>
    <message>
        <source>Display Version</source>
        <translation>Display Version</translation>
    </message>
    <message>
        <source>Do not save</source>
        <translation>Do not save</translation>
    </message>
    <message>
        <source>Dot</source>
        <translation>Dot</translation>
    </message>
    <message>
        <source>Dotted cross</source>
        <translation>Dotted cross</translation>
    </message>
    <message>
        <source>Double Kill</source>
        <translation>Double Kill</translation>
    </message>
    <message>
        <source>Draw a line through a zone to cut it, or drag an edge. With the keyboard: the arrows choose a zone, Ctrl and an arrow moves its edge.</source>
        <translation>Draw a line through a zone to cut it, or drag an edge. With the keyboard: the arrows choose a zone, Ctrl and an arrow moves its edge.</translation>
    </message>
    <message>
        <source>Draw frames cell by cell; the matrix plays them in a loop.</source>
        <translation>Draw frames cell by cell; the matrix plays them in a loop.</translation>
    </message>
    <message>
        <source>Drawn by the monitor itself, so it works in every game and is no program that a game could see.</source>
        <translation>Drawn by the monitor itself, so it works in every game and is no program that a game could see.</translation>
    </message>
    <message>
        <source>Draws guide lines for composing a picture. Close = none, Trichotomy = into thirds, Round = a circle.</source>
        <translation>Draws guide lines for composing a picture. Close = none, Trichotomy = into thirds, Round = a circle.</translation>
    </message>
    <message>
        <source>Draws lines that divide the screen. Close = none; Alignment_4, Alignment_6 and Alignment_9 = into 4, 6 or 9 parts.</source>
        <translation>Draws lines that divide the screen. Close = none; Alignment_4, Alignment_6 and Alignment_9 = into 4, 6 or 9 parts.</translation>
    </message>
    <message>
        <source>Draws the outline of a sheet on the screen. Close = none, Custom Size = as large as you set it.</source>
        <translation>Draws the outline of a sheet on the screen. Close = none, Custom Size = as large as you set it.</translation>
    </message>
    <message>
        <source>Drop a chunk</source>
        <translation>Drop a chunk</translation>
    </message>
    <message>
        <source>Duplicate Frame</source>
        <translation>Duplicate Frame</translation>
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
        <translation>Dynamic Crosshair</translation>
    </message>
    <message>
        <source>Dynamic Crosshair Color</source>
        <translation>Dynamic Crosshair Color</translation>
    </message>
    <message>
        <source>Dynamic Crosshair Size</source>
        <translation>Dynamic Crosshair Size</translation>
    </message>
    <message>
        <source>Dynamic OD</source>
        <translation>Dynamic OD</translation>
    </message>
    <message>
        <source>E-Book</source>
        <translation>E-Book</translation>
    </message>
    <message>
        <source>E-Book Mode</source>
        <translation>E-Book Mode</translation>
    </message>
    <message>
        <source>E-Book Mode is black and white: colours need another scene mode.</source>
        <translation>E-Book Mode is black and white: colours need another scene mode.</translation>
    </message>
    <message>
        <source>EBU</source>
        <translation>EBU</translation>
    </message>
    <message>
        <source>EBU Mode</source>
        <translation>EBU Mode</translation>
    </message>
    <message>
        <source>Easy to find, and covers what it points at.</source>
        <translation>Easy to find, and covers what it points at.</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effect</translation>
    </message>
    <message>
        <source>Emberline</source>
        <translation>Emberline</translation>
    </message>
    <message>
        <source>Enlarges the middle of the screen, so that what is far away is seen.</source>
        <translation>Enlarges the middle of the screen, so that what is far away is seen.</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Erase</translation>
    </message>
    <message>
        <source>European broadcasting primaries.</source>
        <translation>European broadcasting primaries.</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Events</translation>
    </message>
    <message>
        <source>Every packet holds 7001 frames until the button is released</source>
        <translation>Every packet holds 7001 frames until the button is released</translation>
    </message>
    <message>
        <source>Every picture is shown with the usual range.</source>
        <translation>Every picture is shown with the usual range.</translation>
    </message>
    <message>
        <source>Every request takes 400 ms longer</source>
        <translation>Every request takes 400 ms longer</translation>
    </message>
    <message>
        <source>Everything that the panel can show.</source>
        <translation>Everything that the panel can show.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Export Animate</source>
        <translation>Export Animate</translation>
    </message>
    <message>
        <source>Extensible, floating point</source>
        <translation>Extensible, floating point</translation>
    </message>
    <message>
        <source>Extensible, integer</source>
        <translation>Extensible, integer</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <translation>Eye Care</translation>
    </message>
    <message>
        <source>Eye Care Mode</source>
        <translation>Eye Care Mode</translation>
    </message>
    <message>
        <source>Eyeshield Remind</source>
        <translation>Eyeshield Remind</translation>
    </message>
    <message>
        <source>Falling Peaks</source>
        <translation>Falling Peaks</translation>
    </message>
    <message>
        <source>Far above the middle, for games that aim high on the screen.</source>
        <translation>Far above the middle, for games that aim high on the screen.</translation>
    </message>
    <message>
        <source>Far below the middle, for games that aim low on the screen.</source>
        <translation>Far below the middle, for games that aim low on the screen.</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Fast</translation>
    </message>
    <message>
        <source>Fast enough for every resolution and refresh rate.</source>
        <translation>Fast enough for every resolution and refresh rate.</translation>
    </message>
    <message>
        <source>Fast, for games. Light edges may be seen on some grey tones.</source>
        <translation>Fast, for games. Light edges may be seen on some grey tones.</translation>
    </message>
    <message>
        <source>Faster: less smear behind what moves.</source>
        <translation>Faster: less smear behind what moves.</translation>
    </message>
    <message>
        <source>File is null.</source>
        <translation>File is null.</translation>
    </message>
    <message>
        <source>Fine lines and clear edges for drawings.</source>
        <translation>Fine lines and clear edges for drawings.</translation>
    </message>
    <message>
        <source>First control</source>
        <translation>First control</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Flow</translation>
    </message>
    <message>
        <source>Focus Dimming</source>
        <translation>Focus Dimming</translation>
    </message>
    <message>
        <source>Focus Dimming Level</source>
        <translation>Focus Dimming Level</translation>
    </message>
    <message>
        <source>Follow Desc</source>
        <translation>Pair a program with a scene mode: the monitor switches while the program is in front, and back to the base scene when it is not.</translation>
    </message>
    <message>
        <source>Follow Setting</source>
        <translation>Scene Following</translation>
    </message>
    <message>
        <source>For a laptop whose picture comes by its USB cable. Off if that socket only carries data and power.</source>
        <translation>For a laptop whose picture comes by its USB cable. Off if that socket only carries data and power.</translation>
    </message>
    <message>
        <source>For a player or a console that is to wake the monitor. Quick Boot cannot be on at the same time.</source>
        <translation>For a player or a console that is to wake the monitor. Quick Boot cannot be on at the same time.</translation>
    </message>
    <message>
        <source>For a screen that is left alone for long. Films and games move and are not dimmed.</source>
        <translation>For a screen that is left alone for long. Films and games move and are not dimmed.</translation>
    </message>
    <message>
        <source>For a screen that is used for pictures and texts in turn. Leave it off while you judge colours.</source>
        <translation>For a screen that is used for pictures and texts in turn. Leave it off while you judge colours.</translation>
    </message>
    <message>
        <source>For charging a telephone at the monitor, and for keyboard and mouse. Off saves power in standby.</source>
        <translation>For charging a telephone at the monitor, and for keyboard and mouse. Off saves power in standby.</translation>
    </message>
    <message>
        <source>For code on a dark ground.</source>
        <translation>For code on a dark ground.</translation>
    </message>
    <message>
        <source>For code on a light ground.</source>
        <translation>For code on a light ground.</translation>
    </message>
    <message>
        <source>For computers, which send 0 to 255.</source>
        <translation>For computers, which send 0 to 255.</translation>
    </message>
    <message>
        <source>For fast games in which a crosshair that stands still gets lost.</source>
        <translation>For fast games in which a crosshair that stands still gets lost.</translation>
    </message>
    <message>
        <source>For finding out why a monitor does not answer as it should.</source>
        <translation>For finding out why a monitor does not answer as it should.</translation>
    </message>
    <message>
        <source>For games in which every moment counts. For films and work leave it off.</source>
        <translation>For games in which every moment counts. For films and work leave it off.</translation>
    </message>
    <message>
        <source>For games in which the middle decides. Maps and figures at the rim get darker too.</source>
        <translation>For games in which the middle decides. Maps and figures at the rim get darker too.</translation>
    </message>
    <message>
        <source>For games that have no crosshair of their own, or one that is hard to see.</source>
        <translation>For games that have no crosshair of their own, or one that is hard to see.</translation>
    </message>
    <message>
        <source>For games with far targets. It covers a part of the picture.</source>
        <translation>For games with far targets. It covers a part of the picture.</translation>
    </message>
    <message>
        <source>For games, whose pictures come now faster, now slower. The computer must have it switched on as well.</source>
        <translation>For games, whose pictures come now faster, now slower. The computer must have it switched on as well.</translation>
    </message>
    <message>
        <source>For most games.</source>
        <translation>For most games.</translation>
    </message>
    <message>
        <source>For placing windows, pictures or a drawing evenly around the middle.</source>
        <translation>For placing windows, pictures or a drawing evenly around the middle.</translation>
    </message>
    <message>
        <source>For players and consoles that send 16 to 235. With a computer black looks grey.</source>
        <translation>For players and consoles that send 16 to 235. With a computer black looks grey.</translation>
    </message>
    <message>
        <source>For scenes that are near.</source>
        <translation>For scenes that are near.</translation>
    </message>
    <message>
        <source>For targets that move: what is in the ring is near enough.</source>
        <translation>For targets that move: what is in the ring is near enough.</translation>
    </message>
    <message>
        <source>For wide landscapes; coarse.</source>
        <translation>For wide landscapes; coarse.</translation>
    </message>
    <message>
        <source>Found at once, also from far away.</source>
        <translation>Found at once, also from far away.</translation>
    </message>
    <message>
        <source>Four bytes of the next scene-mode block get lost</source>
        <translation>Four bytes of the next scene-mode block get lost</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>Frame %1</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Frames</translation>
    </message>
    <message>
        <source>Frames/s</source>
        <translation>Frames/s</translation>
    </message>
    <message>
        <source>Frames: %1</source>
        <translation>Frames: %1</translation>
    </message>
    <message>
        <source>Frames: %1, of which the accessory takes %2</source>
        <translation>Frames: %1, of which the accessory takes %2</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>From now on another program has it.</source>
        <translation>From now on another program has it.</translation>
    </message>
    <message>
        <source>Front Brightness</source>
        <translation>Front Brightness</translation>
    </message>
    <message>
        <source>Front Color</source>
        <translation>Front Color</translation>
    </message>
    <message>
        <source>Front and Rear</source>
        <translation>Front and Rear</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Function</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Gama</source>
        <translation>Gama</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Game</translation>
    </message>
    <message>
        <source>Game Aid</source>
        <translation>Game Aid</translation>
    </message>
    <message>
        <source>Game Crosshair</source>
        <translation>Game Crosshair</translation>
    </message>
    <message>
        <source>Game Rush</source>
        <translation>Game Rush</translation>
    </message>
    <message>
        <source>Game Time</source>
        <translation>Game Time</translation>
    </message>
    <message>
        <source>Game Time Length</source>
        <translation>Game Time Length</translation>
    </message>
    <message>
        <source>Game Time Place</source>
        <translation>Game Time Place</translation>
    </message>
    <message>
        <source>Game VS</source>
        <translation>Game VS</translation>
    </message>
    <message>
        <source>Game report</source>
        <translation>Game report</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>General Settings</source>
        <translation>General Settings</translation>
    </message>
    <message>
        <source>Give the zone away</source>
        <translation>Give the zone away</translation>
    </message>
    <message>
        <source>Global Rhythm</source>
        <translation>Global Rhythm</translation>
    </message>
    <message>
        <source>Go deaf</source>
        <translation>Go deaf</translation>
    </message>
    <message>
        <source>Golden Section</source>
        <translation>Golden Section</translation>
    </message>
    <message>
        <source>Gravity Sensor</source>
        <translation>Gravity Sensor</translation>
    </message>
    <message>
        <source>Gray Response</source>
        <translation>Gray Response</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>H-Position</source>
        <translation>H-Position</translation>
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
        <translation>HDTV Video</translation>
    </message>
    <message>
        <source>Halo Control</source>
        <translation>Halo Control</translation>
    </message>
    <message>
        <source>Halves</source>
        <translation>Halves</translation>
    </message>
    <message>
        <source>Hanging</source>
        <translation>Hanging</translation>
    </message>
    <message>
        <source>HawkEye Brightness</source>
        <translation>HawkEye Brightness</translation>
    </message>
    <message>
        <source>HawkEye Contrast</source>
        <translation>HawkEye Contrast</translation>
    </message>
    <message>
        <source>HawkEye Sharpness</source>
        <translation>HawkEye Sharpness</translation>
    </message>
    <message>
        <source>HawkEye Vision</source>
        <translation>HawkEye Vision</translation>
    </message>
    <message>
        <source>HawkEye Zoom</source>
        <translation>HawkEye Zoom</translation>
    </message>
    <message>
        <source>Headshot</source>
        <translation>Headshot</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>High</source>
        <translation>High</translation>
    </message>
    <message>
        <source>High-definition television.</source>
        <translation>High-definition television.</translation>
    </message>
    <message>
        <source>High-definition video work.</source>
        <translation>High-definition video work.</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>Highlight</translation>
    </message>
    <message>
        <source>Hold Ctrl or Alt and press a letter or a digit.</source>
        <translation>Hold Ctrl or Alt and press a letter or a digit.</translation>
    </message>
    <message>
        <source>Hotkey conflict</source>
        <translation>Hotkey conflict</translation>
    </message>
    <message>
        <source>How and where the monitor shows its menu, and how soon it sleeps without a signal (No Signal Timer).</source>
        <translation>How and where the monitor shows its menu, and how soon it sleeps without a signal (No Signal Timer).</translation>
    </message>
    <message>
        <source>How bright the enlarged part is. Level3 = as the rest; higher ones show what is in the shade.</source>
        <translation>How bright the enlarged part is. Level3 = as the rest; higher ones show what is in the shade.</translation>
    </message>
    <message>
        <source>How bright the lamp shines that tells that the monitor is on. Close = dark, Level3 = brightest.</source>
        <translation>How bright the lamp shines that tells that the monitor is on. Close = dark, Level3 = brightest.</translation>
    </message>
    <message>
        <source>How bright the middle tones are. The higher the value, the darker.</source>
        <translation>How bright the middle tones are. The higher the value, the darker.</translation>
    </message>
    <message>
        <source>How clear its edges are. Level3 = as they come; lower ones hide coarse dots, higher ones show outlines.</source>
        <translation>How clear its edges are. Level3 = as they come; lower ones hide coarse dots, higher ones show outlines.</translation>
    </message>
    <message>
        <source>How far light and dark are apart in it. Level3 = as the rest; higher ones help in fog and dust.</source>
        <translation>How far light and dark are apart in it. Level3 = as the rest; higher ones help in fog and dust.</translation>
    </message>
    <message>
        <source>How long the monitor waits without a signal before it sleeps.</source>
        <translation>How long the monitor waits without a signal before it sleeps.</translation>
    </message>
    <message>
        <source>How often a day the tool may change the monitor without your doing.</source>
        <translation>How often a day the tool may change the monitor without your doing.</translation>
    </message>
    <message>
        <source>How pictures with a high dynamic range are shown. Close = off, Auto = when the signal has it.</source>
        <translation>How pictures with a high dynamic range are shown. Close = off, Auto = when the signal has it.</translation>
    </message>
    <message>
        <source>How the LED matrix behind the monitor shines. Matrix Lamp and Clock: Close = off, Open = on.</source>
        <translation>How the LED matrix behind the monitor shines. Matrix Lamp and Clock: Close = off, Open = on.</translation>
    </message>
    <message>
        <source>How the lamps move in the mode &quot;Effect&quot;. The picture plays it as it will look.</source>
        <translation>How the lamps move in the mode &quot;Effect&quot;. The picture plays it as it will look.</translation>
    </message>
    <message>
        <source>How the link to the monitor has been since the program started.</source>
        <translation>How the link to the monitor has been since the program started.</translation>
    </message>
    <message>
        <source>How the print will look under a D55 light.</source>
        <translation>How the print will look under a D55 light.</translation>
    </message>
    <message>
        <source>How the print will look under a D58 light.</source>
        <translation>How the print will look under a D58 light.</translation>
    </message>
    <message>
        <source>How the print will look.</source>
        <translation>How the print will look.</translation>
    </message>
    <message>
        <source>How this tool starts, which language it speaks and what it may do by itself.</source>
        <translation>How this tool starts, which language it speaks and what it may do by itself.</translation>
    </message>
    <message>
        <source>How warm white looks. 5000K = warmest, 9300K = coldest, User1 to User3 = your own mixtures.</source>
        <translation>How warm white looks. 5000K = warmest, 9300K = coldest, User1 to User3 = your own mixtures.</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Hue</translation>
    </message>
    <message>
        <source>Hue R Y G C B M</source>
        <translation>Hue R Y G C B M</translation>
    </message>
    <message>
        <source>Huge packets</source>
        <translation>Huge packets</translation>
    </message>
    <message>
        <source>I/O Settings</source>
        <translation>I/O Settings</translation>
    </message>
    <message>
        <source>ISP</source>
        <translation>ISP</translation>
    </message>
    <message>
        <source>If you switch the monitor on several times a day. CEC cannot be on at the same time.</source>
        <translation>If you switch the monitor on several times a day. CEC cannot be on at the same time.</translation>
    </message>
    <message>
        <source>If you turn the screen now and then: the monitor&apos;s menu turns with it.</source>
        <translation>If you turn the screen now and then: the monitor&apos;s menu turns with it.</translation>
    </message>
    <message>
        <source>Image sticking protection: clears what a picture leaves behind as soon as it is gone.</source>
        <translation>Image sticking protection: clears what a picture leaves behind as soon as it is gone.</translation>
    </message>
    <message>
        <source>Import Aligned</source>
        <translation>Import Aligned</translation>
    </message>
    <message>
        <source>Import Animate</source>
        <translation>Import Animate</translation>
    </message>
    <message>
        <source>In the very middle, where most games aim.</source>
        <translation>In the very middle, where most games aim.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Input Signal</source>
        <translation>Input Signal</translation>
    </message>
    <message>
        <source>Inset Place</source>
        <translation>Inset Place</translation>
    </message>
    <message>
        <source>Inset Size</source>
        <translation>Inset Size</translation>
    </message>
    <message>
        <source>Is it on, its cable plugged in, and DDC/CI on in its menu?</source>
        <translation>Is it on, its cable plugged in, and DDC/CI on in its menu?</translation>
    </message>
    <message>
        <source>It answers again; nothing to do.</source>
        <translation>It answers again; nothing to do.</translation>
    </message>
    <message>
        <source>It is a link, which is not followed.</source>
        <translation>It is a link, which is not followed.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>It is no file.</translation>
    </message>
    <message>
        <source>It may not be changed.</source>
        <translation>It may not be changed.</translation>
    </message>
    <message>
        <source>Keeps what matters away from the edges.</source>
        <translation>Keeps what matters away from the edges.</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Keyboard</translation>
    </message>
    <message>
        <source>Keyboard and mouse at the monitor belong to the computer at the Type-B socket.</source>
        <translation>Keyboard and mouse at the monitor belong to the computer at the Type-B socket.</translation>
    </message>
    <message>
        <source>Keyboard and mouse at the monitor belong to the computer at the Type-C socket.</source>
        <translation>Keyboard and mouse at the monitor belong to the computer at the Type-C socket.</translation>
    </message>
    <message>
        <source>Keys of the numeric pad cannot be used.</source>
        <translation>Keys of the numeric pad cannot be used.</translation>
    </message>
    <message>
        <source>Kill</source>
        <translation>Kill</translation>
    </message>
    <message>
        <source>Knowledge</source>
        <translation>Knowledge</translation>
    </message>
    <message>
        <source>LANGUAGE_ADD_KEY</source>
        <translation>Add Shortcut</translation>
    </message>
    <message>
        <source>LANGUAGE_SHORTCUTKEY</source>
        <translation>Shortcut Keys</translation>
    </message>
    <message>
        <source>LANGUAGE_SHORTCUTKEY_DESC</source>
        <translation>Keys for functions of the monitor that work anywhere on the desktop: Ctrl or Alt with a letter or a digit; Backspace clears a field.</translation>
    </message>
    <message>
        <source>LED matrix</source>
        <translation>LED matrix</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lamp</translation>
    </message>
    <message>
        <source>Lamp Belt</source>
        <translation>Lamp Belt</translation>
    </message>
    <message>
        <source>Lamp Belt Brightness</source>
        <translation>Lamp Belt Brightness</translation>
    </message>
    <message>
        <source>Lamp Belt Color</source>
        <translation>Lamp Belt Color</translation>
    </message>
    <message>
        <source>Lamp Belt Effect</source>
        <translation>Lamp Belt Effect</translation>
    </message>
    <message>
        <source>Lamp Belt Front Color</source>
        <translation>Lamp Belt Front Color</translation>
    </message>
    <message>
        <source>Lamp Belt Rear Color</source>
        <translation>Lamp Belt Rear Color</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Large</translation>
    </message>
    <message>
        <source>Last care: %1</source>
        <translation>Last care: %1</translation>
    </message>
    <message>
        <source>Last errors</source>
        <translation>Last errors</translation>
    </message>
    <message>
        <source>Last requests to the monitor</source>
        <translation>Last requests to the monitor</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Layouts</translation>
    </message>
    <message>
        <source>Leave it on, unless you see the clearing itself as a flicker when windows close.</source>
        <translation>Leave it on, unless you see the clearing itself as a flicker when windows close.</translation>
    </message>
    <message>
        <source>Leaves the target free but for its very middle.</source>
        <translation>Leaves the target free but for its very middle.</translation>
    </message>
    <message>
        <source>Leaves the target free.</source>
        <translation>Leaves the target free.</translation>
    </message>
    <message>
        <source>Less blue light for long days.</source>
        <translation>Less blue light for long days.</translation>
    </message>
    <message>
        <source>Lets the monitor switch between its two modes by itself. Close = off, Open = on.</source>
        <translation>Lets the monitor switch between its two modes by itself. Close = off, Open = on.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Level1</source>
        <translation>Level1</translation>
    </message>
    <message>
        <source>Level1 follows great changes only, for a quiet room; Level5 also small ones.</source>
        <translation>Level1 follows great changes only, for a quiet room; Level5 also small ones.</translation>
    </message>
    <message>
        <source>Level2</source>
        <translation>Level2</translation>
    </message>
    <message>
        <source>Level3</source>
        <translation>Level3</translation>
    </message>
    <message>
        <source>Level4</source>
        <translation>Level4</translation>
    </message>
    <message>
        <source>Level5</source>
        <translation>Level5</translation>
    </message>
    <message>
        <source>Lifts thin lines and dark surfaces of drawings.</source>
        <translation>Lifts thin lines and dark surfaces of drawings.</translation>
    </message>
    <message>
        <source>Light Brightness</source>
        <translation>Light Brightness</translation>
    </message>
    <message>
        <source>Light Color</source>
        <translation>Light Color</translation>
    </message>
    <message>
        <source>Light Color B</source>
        <translation>Light Color B</translation>
    </message>
    <message>
        <source>Light Color G</source>
        <translation>Light Color G</translation>
    </message>
    <message>
        <source>Light Color R</source>
        <translation>Light Color R</translation>
    </message>
    <message>
        <source>Light Direction</source>
        <translation>Light Direction</translation>
    </message>
    <message>
        <source>Light Effect</source>
        <translation>Light Effect</translation>
    </message>
    <message>
        <source>Light Level</source>
        <translation>Light Level</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Light Mode</translation>
    </message>
    <message>
        <source>Light Programme</source>
        <translation>Light Programme</translation>
    </message>
    <message>
        <source>Light Sensor</source>
        <translation>Light Sensor</translation>
    </message>
    <message>
        <source>Light Speed</source>
        <translation>Light Speed</translation>
    </message>
    <message>
        <source>Light Temperature</source>
        <translation>Light Temperature</translation>
    </message>
    <message>
        <source>Light Timer</source>
        <translation>Light Timer</translation>
    </message>
    <message>
        <source>Light and dark follow each other around the ring.</source>
        <translation>Light and dark follow each other around the ring.</translation>
    </message>
    <message>
        <source>Light in Standby</source>
        <translation>Light in Standby</translation>
    </message>
    <message>
        <source>Lighter = used longer that day, ring = cared for.</source>
        <translation>Lighter = used longer that day, ring = cared for.</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Lighting</translation>
    </message>
    <message>
        <source>Lines at 38 and 62 per cent: balanced, and less rigid than thirds.</source>
        <translation>Lines at 38 and 62 per cent: balanced, and less rigid than thirds.</translation>
    </message>
    <message>
        <source>Lines at thirds: put what matters where they cross.</source>
        <translation>Lines at thirds: put what matters where they cross.</translation>
    </message>
    <message>
        <source>Listening…</source>
        <translation>Listening…</translation>
    </message>
    <message>
        <source>Live frames</source>
        <translation>Live frames</translation>
    </message>
    <message>
        <source>Localdimming</source>
        <translation>Localdimming</translation>
    </message>
    <message>
        <source>Locks the monitor&apos;s own menu, so that nobody changes it by accident.</source>
        <translation>Locks the monitor&apos;s own menu, so that nobody changes it by accident.</translation>
    </message>
    <message>
        <source>Look for the monitor again</source>
        <translation>Look for the monitor again</translation>
    </message>
    <message>
        <source>Lose a reply</source>
        <translation>Lose a reply</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Low Blue Light</translation>
    </message>
    <message>
        <source>Low Health</source>
        <translation>Low Health</translation>
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
        <translation>MPCS/LD leaves no room for the Ull levels; they need another scene mode.</translation>
    </message>
    <message>
        <source>MPCS/ULL FPS</source>
        <translation>MPCS/ULL FPS</translation>
    </message>
    <message>
        <source>MPCS/ULL FPS offers the Ull levels only; the others need another scene mode.</source>
        <translation>MPCS/ULL FPS offers the Ull levels only; the others need another scene mode.</translation>
    </message>
    <message>
        <source>Mac View</source>
        <translation>Mac View</translation>
    </message>
    <message>
        <source>Machine Select</source>
        <translation>Machine Select</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Main and side</source>
        <translation>Main and side</translation>
    </message>
    <message>
        <source>Make it your own</source>
        <translation>Make it your own</translation>
    </message>
    <message>
        <source>Makes colours stronger. 0 = off.</source>
        <translation>Makes colours stronger. 0 = off.</translation>
    </message>
    <message>
        <source>Makes dark parts lighter or darker, so that you see what is in the shadows.</source>
        <translation>Makes dark parts lighter or darker, so that you see what is in the shadows.</translation>
    </message>
    <message>
        <source>Makes what moves look sharper. Close = off; Low to High and Ull-Level1 to 3 are stronger in turn.</source>
        <translation>Makes what moves look sharper. Close = off; Low to High and Ull-Level1 to 3 are stronger in turn.</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Marks along two edges, to measure and compare lengths.</source>
        <translation>Marks along two edges, to measure and compare lengths.</translation>
    </message>
    <message>
        <source>Matches notebooks with a Display P3 screen.</source>
        <translation>Matches notebooks with a Display P3 screen.</translation>
    </message>
    <message>
        <source>Matrix Brightness</source>
        <translation>Matrix Brightness</translation>
    </message>
    <message>
        <source>Matrix Form</source>
        <translation>Matrix Form</translation>
    </message>
    <message>
        <source>Matrix Lamp</source>
        <translation>Matrix Lamp</translation>
    </message>
    <message>
        <source>Matrix Mode1</source>
        <translation>Matrix Mode1</translation>
    </message>
    <message>
        <source>Matrix Mode2</source>
        <translation>Matrix Mode2</translation>
    </message>
    <message>
        <source>Matrix Mode3</source>
        <translation>Matrix Mode3</translation>
    </message>
    <message>
        <source>Matrix Power Off</source>
        <translation>Matrix Power Off</translation>
    </message>
    <message>
        <source>Matrix Standby</source>
        <translation>Matrix Standby</translation>
    </message>
    <message>
        <source>Matrix of the simulated accessory</source>
        <translation>Matrix of the simulated accessory</translation>
    </message>
    <message>
        <source>Maximum 192 frames</source>
        <translation>Maximum 192 frames</translation>
    </message>
    <message>
        <source>Median answer</source>
        <translation>Median answer</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Menu Lock</source>
        <translation>Menu Lock</translation>
    </message>
    <message>
        <source>Menu lock already opened!</source>
        <translation>Menu lock already opened!</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Middle</translation>
    </message>
    <message>
        <source>Middle tones a little brighter than usual.</source>
        <translation>Middle tones a little brighter than usual.</translation>
    </message>
    <message>
        <source>Middle tones a little darker, for films in a dim room.</source>
        <translation>Middle tones a little darker, for films in a dim room.</translation>
    </message>
    <message>
        <source>Middle+</source>
        <translation>Middle+</translation>
    </message>
    <message>
        <source>Middle-</source>
        <translation>Middle-</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Minimise</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Mirrored</translation>
    </message>
    <message>
        <source>Mix format</source>
        <translation>Mix format</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Mode %1</source>
        <translation>Mode %1</translation>
    </message>
    <message>
        <source>Mode1</source>
        <translation>Mode1</translation>
    </message>
    <message>
        <source>Mode2</source>
        <translation>Mode2</translation>
    </message>
    <message>
        <source>Mode3</source>
        <translation>Mode3</translation>
    </message>
    <message>
        <source>Mode4</source>
        <translation>Mode4</translation>
    </message>
    <message>
        <source>Mode5</source>
        <translation>Mode5</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Monitor Health</source>
        <translation>Monitor Health</translation>
    </message>
    <message>
        <source>More than two fifths of the screen&apos;s width: small text stays readable.</source>
        <translation>More than two fifths of the screen&apos;s width: small text stays readable.</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Motion</translation>
    </message>
    <message>
        <source>Moves now and then, for everyday work.</source>
        <translation>Moves now and then, for everyday work.</translation>
    </message>
    <message>
        <source>Moves often: for menus and maps that stand still for hours.</source>
        <translation>Moves often: for menus and maps that stand still for hours.</translation>
    </message>
    <message>
        <source>Moves seldom: nobody notices it.</source>
        <translation>Moves seldom: nobody notices it.</translation>
    </message>
    <message>
        <source>Moves the whole picture by a few pixels now and then, so that edges do not burn in. Close = off.</source>
        <translation>Moves the whole picture by a few pixels now and then, so that edges do not burn in. Close = off.</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Movie</translation>
    </message>
    <message>
        <source>Movie Mode</source>
        <translation>Movie Mode</translation>
    </message>
    <message>
        <source>Much darker: the best protection where the same picture stands for hours.</source>
        <translation>Much darker: the best protection where the same picture stands for hours.</translation>
    </message>
    <message>
        <source>Multi-window</source>
        <translation>Multi-window</translation>
    </message>
    <message>
        <source>Music Mode</source>
        <translation>Music Mode</translation>
    </message>
    <message>
        <source>Must match the computer&apos;s signal. RGB Auto = found out by itself, RGB Limit = 16 to 235, RGB Full = 0 to 255.</source>
        <translation>Must match the computer&apos;s signal. RGB Auto = found out by itself, RGB Limit = 16 to 235, RGB Full = 0 to 255.</translation>
    </message>
    <message>
        <source>My layout</source>
        <translation>My layout</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>NA</translation>
    </message>
    <message>
        <source>NTSC Video</source>
        <translation>NTSC Video</translation>
    </message>
    <message>
        <source>NTSC television.</source>
        <translation>NTSC television.</translation>
    </message>
    <message>
        <source>Name of the layout</source>
        <translation>Name of the layout</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>Native</translation>
    </message>
    <message>
        <source>Native Mode</source>
        <translation>Native Mode</translation>
    </message>
    <message>
        <source>Nearly the usual white, a touch warmer.</source>
        <translation>Nearly the usual white, a touch warmer.</translation>
    </message>
    <message>
        <source>New device</source>
        <translation>New device</translation>
    </message>
    <message>
        <source>New layout</source>
        <translation>New layout</translation>
    </message>
    <message>
        <source>Next form</source>
        <translation>Next form</translation>
    </message>
    <message>
        <source>Next value</source>
        <translation>Next value</translation>
    </message>
    <message>
        <source>Next zone</source>
        <translation>Next zone</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Night</translation>
    </message>
    <message>
        <source>Night Loom</source>
        <translation>Night Loom</translation>
    </message>
    <message>
        <source>Night Mode</source>
        <translation>Night Mode</translation>
    </message>
    <message>
        <source>Night View C.T</source>
        <translation>Night View C.T</translation>
    </message>
    <message>
        <source>Night Vision</source>
        <translation>Night Vision</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>No Signal Timer</source>
        <translation>No Signal Timer</translation>
    </message>
    <message>
        <source>No Type-C data cable or HDMI/DP + USB data cable connected.</source>
        <translation>No Type-C data cable or HDMI/DP + USB data cable connected.</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>No answer</translation>
    </message>
    <message>
        <source>No answer for %1 s</source>
        <translation>No answer for %1 s</translation>
    </message>
    <message>
        <source>No care has been seen yet: hours count from the first start of this tool.</source>
        <translation>No care has been seen yet: hours count from the first start of this tool.</translation>
    </message>
    <message>
        <source>No file path selected.</source>
        <translation>No file path selected.</translation>
    </message>
    <message>
        <source>No limit</source>
        <translation>No limit</translation>
    </message>
    <message>
        <source>No programs yet: add one and choose its scene.</source>
        <translation>No programs yet: add one and choose its scene.</translation>
    </message>
    <message>
        <source>No shortcuts yet: choose a function above and add it.</source>
        <translation>No shortcuts yet: choose a function above and add it.</translation>
    </message>
    <message>
        <source>No window is in front: press on the one that you mean first.</source>
        <translation>No window is in front: press on the one that you mean first.</translation>
    </message>
    <message>
        <source>No zone beside it can take this one.</source>
        <translation>No zone beside it can take this one.</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Noise</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>None.</source>
        <translation>None.</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Not chosen here yet. The accessory does not tell what it has.</source>
        <translation>Not chosen here yet. The accessory does not tell what it has.</translation>
    </message>
    <message>
        <source>Not told: %1</source>
        <translation>Not told: %1</translation>
    </message>
    <message>
        <source>Not uploaded from here. In Custom Mode it is &quot;%1&quot;.</source>
        <translation>Not uploaded from here. In Custom Mode it is &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Nothing above the point: for shots that fall.</source>
        <translation>Nothing above the point: for shots that fall.</translation>
    </message>
    <message>
        <source>Nothing can be heard or seen: the lamps keep their last colour.</source>
        <translation>Nothing can be heard or seen: the lamps keep their last colour.</translation>
    </message>
    <message>
        <source>Nothing is dimmed.</source>
        <translation>Nothing is dimmed.</translation>
    </message>
    <message>
        <source>Nothing is drawn over the picture.</source>
        <translation>Nothing is drawn over the picture.</translation>
    </message>
    <message>
        <source>Nothing is followed but in one of the two rhythm modes.</source>
        <translation>Nothing is followed but in one of the two rhythm modes.</translation>
    </message>
    <message>
        <source>Nothing is heard: no program plays, or the sound output is gone.</source>
        <translation>Nothing is heard: no program plays, or the sound output is gone.</translation>
    </message>
    <message>
        <source>Nothing moves but in the mode &quot;Effect&quot;.</source>
        <translation>Nothing moves but in the mode &quot;Effect&quot;.</translation>
    </message>
    <message>
        <source>Nothing plays</source>
        <translation>Nothing plays</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>OSD Language</source>
        <translation>OSD Language</translation>
    </message>
    <message>
        <source>OSD Setting</source>
        <translation>OSD Setting</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Office Aid</source>
        <translation>Office Aid</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Ok</translation>
    </message>
    <message>
        <source>Old place</source>
        <translation>Old place</translation>
    </message>
    <message>
        <source>Oled Care</source>
        <translation>Oled Care</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>On its way to the monitor.</source>
        <translation>On its way to the monitor.</translation>
    </message>
    <message>
        <source>On now.</source>
        <translation>On now.</translation>
    </message>
    <message>
        <source>On now: %1</source>
        <translation>On now: %1</translation>
    </message>
    <message>
        <source>On-screen menu</source>
        <translation>On-screen menu</translation>
    </message>
    <message>
        <source>One colour melts into the next. Off = it changes at once.</source>
        <translation>One colour melts into the next. Off = it changes at once.</translation>
    </message>
    <message>
        <source>One colour that stands still. Calm enough for work.</source>
        <translation>One colour that stands still. Calm enough for work.</translation>
    </message>
    <message>
        <source>One input fills the screen.</source>
        <translation>One input fills the screen.</translation>
    </message>
    <message>
        <source>Onion Skin</source>
        <translation>Onion Skin</translation>
    </message>
    <message>
        <source>Only the modes &quot;Normal&quot; and &quot;Effect&quot; have a colour of their own.</source>
        <translation>Only the modes &quot;Normal&quot; and &quot;Effect&quot; have a colour of their own.</translation>
    </message>
    <message>
        <source>Only the monitor that this tool sets can be read.</source>
        <translation>Only the monitor that this tool sets can be read.</translation>
    </message>
    <message>
        <source>Only the small window of PIP has a size and a place.</source>
        <translation>Only the small window of PIP has a size and a place.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Open cross</source>
        <translation>Open cross</translation>
    </message>
    <message>
        <source>Open the page</source>
        <translation>Open the page</translation>
    </message>
    <message>
        <source>Out of order</source>
        <translation>Out of order</translation>
    </message>
    <message>
        <source>Output Range</source>
        <translation>Output Range</translation>
    </message>
    <message>
        <source>PAL &amp; SECAM</source>
        <translation>PAL &amp; SECAM</translation>
    </message>
    <message>
        <source>PAL and SECAM television.</source>
        <translation>PAL and SECAM television.</translation>
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
        <translation>Paper</translation>
    </message>
    <message>
        <source>Paper Mode</source>
        <translation>Paper Mode</translation>
    </message>
    <message>
        <source>Paper_A4</source>
        <translation>Paper_A4</translation>
    </message>
    <message>
        <source>Paper_B5</source>
        <translation>Paper_B5</translation>
    </message>
    <message>
        <source>Paper_B6</source>
        <translation>Paper_B6</translation>
    </message>
    <message>
        <source>Parameters of the mode</source>
        <translation>Parameters of the mode</translation>
    </message>
    <message>
        <source>Pearl</source>
        <translation>Pearl</translation>
    </message>
    <message>
        <source>Photo(P3-D65)</source>
        <translation>Photo(P3-D65)</translation>
    </message>
    <message>
        <source>Photographs at a D65 white.</source>
        <translation>Photographs at a D65 white.</translation>
    </message>
    <message>
        <source>Picture Enhance</source>
        <translation>Picture Enhance</translation>
    </message>
    <message>
        <source>Picture by picture: two inputs side by side, each on half of the screen, to work on both.</source>
        <translation>Picture by picture: two inputs side by side, each on half of the screen, to work on both.</translation>
    </message>
    <message>
        <source>Picture in picture: a second input in a small window over the first, to keep an eye on another computer.</source>
        <translation>Picture in picture: a second input in a small window over the first, to keep an eye on another computer.</translation>
    </message>
    <message>
        <source>Pictures are shown as they come.</source>
        <translation>Pictures are shown as they come.</translation>
    </message>
    <message>
        <source>Pixel Shift</source>
        <translation>Pixel Shift</translation>
    </message>
    <message>
        <source>Pixels change as fast as the panel does by itself. Nothing is driven harder.</source>
        <translation>Pixels change as fast as the panel does by itself. Nothing is driven harder.</translation>
    </message>
    <message>
        <source>Pixels change faster and motion smears less. Close = off, Topspeed = fastest, which may leave bright edges.</source>
        <translation>Pixels change faster and motion smears less. Close = off, Topspeed = fastest, which may leave bright edges.</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Plain, floating point</source>
        <translation>Plain, floating point</translation>
    </message>
    <message>
        <source>Plain, integer</source>
        <translation>Plain, integer</translation>
    </message>
    <message>
        <source>Playback Level</source>
        <translation>Playback Level</translation>
    </message>
    <message>
        <source>Played</source>
        <translation>Played</translation>
    </message>
    <message>
        <source>Playing Interval</source>
        <translation>Playing Interval</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>Plugged in</translation>
    </message>
    <message>
        <source>Point at an event to see its picture.</source>
        <translation>Point at an event to see its picture.</translation>
    </message>
    <message>
        <source>Power LED</source>
        <translation>Power LED</translation>
    </message>
    <message>
        <source>Power Off Mode</source>
        <translation>Power Off Mode</translation>
    </message>
    <message>
        <source>Power Saving</source>
        <translation>Power Saving</translation>
    </message>
    <message>
        <source>Power for devices at the monitor&apos;s USB sockets, and the picture through the Type-C socket (DP Alt Mode).</source>
        <translation>Power for devices at the monitor&apos;s USB sockets, and the picture through the Type-C socket (DP Alt Mode).</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>Press</translation>
    </message>
    <message>
        <source>Press a number. That of the window&apos;s own zone gives it its old place back. Esc closes.</source>
        <translation>Press a number. That of the window&apos;s own zone gives it its old place back. Esc closes.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>Print Mode</translation>
    </message>
    <message>
        <source>Print(P3-D50)</source>
        <translation>Print(P3-D50)</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programs</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Proofs under a D50 light.</source>
        <translation>Proofs under a D50 light.</translation>
    </message>
    <message>
        <source>Pull out</source>
        <translation>Pull out</translation>
    </message>
    <message>
        <source>Pull out in mid-transfer</source>
        <translation>Pull out in mid-transfer</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Purple</translation>
    </message>
    <message>
        <source>Puts the window in front into a part of the screen. Here you choose how the screen is divided.</source>
        <translation>Puts the window in front into a part of the screen. Here you choose how the screen is divided.</translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation>QR Code</translation>
    </message>
    <message>
        <source>QUORVEL desk</source>
        <translation>QUORVEL desk</translation>
    </message>
    <message>
        <source>Quarters</source>
        <translation>Quarters</translation>
    </message>
    <message>
        <source>Questions and answers about your monitor, in your web browser.</source>
        <translation>Questions and answers about your monitor, in your web browser.</translation>
    </message>
    <message>
        <source>Quick Boot</source>
        <translation>Quick Boot</translation>
    </message>
    <message>
        <source>Quiet: seen best on snow and bright walls.</source>
        <translation>Quiet: seen best on snow and bright walls.</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>RGB Auto</source>
        <translation>RGB Auto</translation>
    </message>
    <message>
        <source>RGB Full</source>
        <translation>RGB Full</translation>
    </message>
    <message>
        <source>RGB Limit</source>
        <translation>RGB Limit</translation>
    </message>
    <message>
        <source>Rainbow</source>
        <translation>Rainbow</translation>
    </message>
    <message>
        <source>Raises the contrast between light and dark parts. 0 = off.</source>
        <translation>Raises the contrast between light and dark parts. 0 = off.</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Rate</translation>
    </message>
    <message>
        <source>Read everything once</source>
        <translation>Read everything once</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Reading</translation>
    </message>
    <message>
        <source>Reading Mode</source>
        <translation>Reading Mode</translation>
    </message>
    <message>
        <source>Reading sample 0123</source>
        <translation>Reading sample 0123</translation>
    </message>
    <message>
        <source>Reading: %1 of %2</source>
        <translation>Reading: %1 of %2</translation>
    </message>
    <message>
        <source>Rear Brightness</source>
        <translation>Rear Brightness</translation>
    </message>
    <message>
        <source>Rear Color</source>
        <translation>Rear Color</translation>
    </message>
    <message>
        <source>Rec.709</source>
        <translation>Rec.709</translation>
    </message>
    <message>
        <source>Rec.709 Mode</source>
        <translation>Rec.709 Mode</translation>
    </message>
    <message>
        <source>Recommended to set [Expand These Monitors] in the System-&gt; Screen when operating multiple monitors.</source>
        <translation>Recommended to set [Expand These Monitors] in the System-&gt; Screen when operating multiple monitors.</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Red, green and blue belong to User1, User2 and User3 of Color Temperature.</source>
        <translation>Red, green and blue belong to User1, User2 and User3 of Color Temperature.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Reduces the glow around bright things on a dark ground.</source>
        <translation>Reduces the glow around bright things on a dark ground.</translation>
    </message>
    <message>
        <source>Refresh Rate</source>
        <translation>Refresh Rate</translation>
    </message>
    <message>
        <source>Refresh Rate Place</source>
        <translation>Refresh Rate Place</translation>
    </message>
    <message>
        <source>Refuse format</source>
        <translation>Refuse format</translation>
    </message>
    <message>
        <source>Refuse writes</source>
        <translation>Refuse writes</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes each time the chosen span has passed. Close = off.</source>
        <translation>Reminds you to rest your eyes each time the chosen span has passed. Close = off.</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation>Rendering</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>Requests</translation>
    </message>
    <message>
        <source>Reset Factory</source>
        <translation>Reset Factory</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>Retries</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>Rhythm</source>
        <translation>Rhythm</translation>
    </message>
    <message>
        <source>Rhythm Color</source>
        <translation>Rhythm Color</translation>
    </message>
    <message>
        <source>Rhythm Color L</source>
        <translation>Rhythm Color L</translation>
    </message>
    <message>
        <source>Rhythm Color R</source>
        <translation>Rhythm Color R</translation>
    </message>
    <message>
        <source>Rhythm Level</source>
        <translation>Rhythm Level</translation>
    </message>
    <message>
        <source>Rhythm Source</source>
        <translation>Rhythm Source</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>Ring</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>Round</translation>
    </message>
    <message>
        <source>Row %1, cell %2: %3</source>
        <translation>Row %1, cell %2: %3</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>Ruler</translation>
    </message>
    <message>
        <source>Run on startup</source>
        <translation>Run on startup</translation>
    </message>
    <message>
        <source>SMPTE-C</source>
        <translation>SMPTE-C</translation>
    </message>
    <message>
        <source>SMPTE-C Mode</source>
        <translation>SMPTE-C Mode</translation>
    </message>
    <message>
        <source>SR</source>
        <translation>SR</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Saturation R Y G C B M</source>
        <translation>Saturation R Y G C B M</translation>
    </message>
    <message>
        <source>Saturation follows Color Enchance while that is above 0.</source>
        <translation>Saturation follows Color Enchance while that is above 0.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save Animate</source>
        <translation>Save Animate</translation>
    </message>
    <message>
        <source>Save Data</source>
        <translation>Save Data</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Save File</translation>
    </message>
    <message>
        <source>Save, export or import the animation first.</source>
        <translation>Save, export or import the animation first.</translation>
    </message>
    <message>
        <source>Scan it with a phone to read more about your monitor.</source>
        <translation>Scan it with a phone to read more about your monitor.</translation>
    </message>
    <message>
        <source>Scence Follow</source>
        <translation>Scence Follow</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Scene</translation>
    </message>
    <message>
        <source>Scene block</source>
        <translation>Scene block</translation>
    </message>
    <message>
        <source>Scene block: one part came late</source>
        <translation>Scene block: one part came late</translation>
    </message>
    <message>
        <source>Scene block: one part did not come</source>
        <translation>Scene block: one part did not come</translation>
    </message>
    <message>
        <source>Scene mode</source>
        <translation>Scene mode</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Screen</translation>
    </message>
    <message>
        <source>Screen Splitter</source>
        <translation>Screen Splitter</translation>
    </message>
    <message>
        <source>Screen of the simulated monitor</source>
        <translation>Screen of the simulated monitor</translation>
    </message>
    <message>
        <source>Scroll Left</source>
        <translation>Scroll Left</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Scroll Right</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scroll down</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scroll up</translation>
    </message>
    <message>
        <source>Second control</source>
        <translation>Second control</translation>
    </message>
    <message>
        <source>Second tone</source>
        <translation>Second tone</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Sections</translation>
    </message>
    <message>
        <source>Seen best in dark scenes.</source>
        <translation>Seen best in dark scenes.</translation>
    </message>
    <message>
        <source>Seen best in the dark and on blue.</source>
        <translation>Seen best in the dark and on blue.</translation>
    </message>
    <message>
        <source>Seen best on green and grey, as in woods and towns.</source>
        <translation>Seen best on green and grey, as in woods and towns.</translation>
    </message>
    <message>
        <source>Seen best on sand, fire and rust.</source>
        <translation>Seen best on sand, fire and rust.</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Select File</source>
        <translation>Select File</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Select None</translation>
    </message>
    <message>
        <source>Sent again and taken; nothing to do.</source>
        <translation>Sent again and taken; nothing to do.</translation>
    </message>
    <message>
        <source>Service Settings</source>
        <translation>Service Settings</translation>
    </message>
    <message>
        <source>Set %1 back to &quot;%2&quot;</source>
        <translation>Set %1 back to &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Set everything back to how the monitor left the factory? The screen goes dark for a few seconds.</source>
        <translation>Set everything back to how the monitor left the factory? The screen goes dark for a few seconds.</translation>
    </message>
    <message>
        <source>Sets everything in the monitor back to how it left the factory.</source>
        <translation>Sets everything in the monitor back to how it left the factory.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Shadow Balance</source>
        <translation>Shadow Balance</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Shape</translation>
    </message>
    <message>
        <source>Sharp motion with local dimming.</source>
        <translation>Sharp motion with local dimming.</translation>
    </message>
    <message>
        <source>Sharp movement for games.</source>
        <translation>Sharp movement for games.</translation>
    </message>
    <message>
        <source>Sharp movement with a short delay, for fast games.</source>
        <translation>Sharp movement with a short delay, for fast games.</translation>
    </message>
    <message>
        <source>Sharper still, with a short delay.</source>
        <translation>Sharper still, with a short delay.</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Sharpness</translation>
    </message>
    <message>
        <source>Short flashes. Not for people who do not bear flashing light.</source>
        <translation>Short flashes. Not for people who do not bear flashing light.</translation>
    </message>
    <message>
        <source>Shortcut Key</source>
        <translation>Shortcut Key</translation>
    </message>
    <message>
        <source>Shortcut overlay</source>
        <translation>Shortcut overlay</translation>
    </message>
    <message>
        <source>Shortens the delay between your hand and the picture in fast games. Adaptive-Sync cannot be chosen meanwhile.</source>
        <translation>Shortens the delay between your hand and the picture in fast games. Adaptive-Sync cannot be chosen meanwhile.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>Show Time(s)</source>
        <translation>Show Time(s)</translation>
    </message>
    <message>
        <source>Show the zones</source>
        <translation>Show the zones</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Shown</translation>
    </message>
    <message>
        <source>Shows a ruler on the screen. Angle close = off, Ruler = for lengths, Angle Ruler = for angles.</source>
        <translation>Shows a ruler on the screen. Angle close = off, Ruler = for lengths, Angle Ruler = for angles.</translation>
    </message>
    <message>
        <source>Shows guide lines that help to line things up. Close = off, Open = on.</source>
        <translation>Shows guide lines that help to line things up. Close = off, Open = on.</translation>
    </message>
    <message>
        <source>Shows in a corner how many pictures a second the monitor gets.</source>
        <translation>Shows in a corner how many pictures a second the monitor gets.</translation>
    </message>
    <message>
        <source>Shows on the desktop what a shortcut has just changed.</source>
        <translation>Shows on the desktop what a shortcut has just changed.</translation>
    </message>
    <message>
        <source>Shows two inputs at once. Drag the small window of PIP to a corner, or one of its edges to a size.</source>
        <translation>Shows two inputs at once. Drag the small window of PIP to a corner, or one of its edges to a size.</translation>
    </message>
    <message>
        <source>Silence</source>
        <translation>Silence</translation>
    </message>
    <message>
        <source>Silences the monitor for a while; the volume stays as it is set.</source>
        <translation>Silences the monitor for a while; the volume stays as it is set.</translation>
    </message>
    <message>
        <source>Simulated monitor</source>
        <translation>Simulated monitor</translation>
    </message>
    <message>
        <source>Single points light up here and there.</source>
        <translation>Single points light up here and there.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>Sleep</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Slow</translation>
    </message>
    <message>
        <source>Slower, and steadier with long or old cables.</source>
        <translation>Slower, and steadier with long or old cables.</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Small</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Smooth</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Soft</translation>
    </message>
    <message>
        <source>Soft Changes</source>
        <translation>Soft Changes</translation>
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
        <translation>Sound</translation>
    </message>
    <message>
        <source>Sound = what this computer plays, Screen = the picture&apos;s edges. Higher levels follow smaller changes.</source>
        <translation>Sound = what this computer plays, Screen = the picture&apos;s edges. Higher levels follow smaller changes.</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation>Sound output</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spectrum</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Standard Mode</source>
        <translation>Standard Mode</translation>
    </message>
    <message>
        <source>Standby Mode</source>
        <translation>Standby Mode</translation>
    </message>
    <message>
        <source>Standing</source>
        <translation>Standing</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Star</translation>
    </message>
    <message>
        <source>Start care</source>
        <translation>Start care</translation>
    </message>
    <message>
        <source>Static Icon</source>
        <translation>Static Icon</translation>
    </message>
    <message>
        <source>Still Picture</source>
        <translation>Still Picture</translation>
    </message>
    <message>
        <source>Stop service</source>
        <translation>Stop service</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>Stopwatch</translation>
    </message>
    <message>
        <source>Stopwatch Place</source>
        <translation>Stopwatch Place</translation>
    </message>
    <message>
        <source>Stopwatch Time</source>
        <translation>Stopwatch Time</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Strong</translation>
    </message>
    <message>
        <source>Super Resolution</source>
        <translation>Super Resolution</translation>
    </message>
    <message>
        <source>Super Resolution: makes blurred or enlarged pictures look sharper. 0 = off.</source>
        <translation>Super Resolution: makes blurred or enlarged pictures look sharper. 0 = off.</translation>
    </message>
    <message>
        <source>Switch off</source>
        <translation>Switch off</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>Switch on</translation>
    </message>
    <message>
        <source>Switch this row on to change its keys.</source>
        <translation>Switch this row on to change its keys.</translation>
    </message>
    <message>
        <source>Switched off.</source>
        <translation>Switched off.</translation>
    </message>
    <message>
        <source>Switched on.</source>
        <translation>Switched on.</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>System Settings</translation>
    </message>
    <message>
        <source>Take one that goes with the wall: light on a coloured wall looks different.</source>
        <translation>Take one that goes with the wall: light on a coloured wall looks different.</translation>
    </message>
    <message>
        <source>Take the corner in which nothing stands that you need.</source>
        <translation>Take the corner in which nothing stands that you need.</translation>
    </message>
    <message>
        <source>Taken by another</source>
        <translation>Taken by another</translation>
    </message>
    <message>
        <source>Takes blue out of the picture, which is easier on the eyes. 0 = off.</source>
        <translation>Takes blue out of the picture, which is easier on the eyes. 0 = off.</translation>
    </message>
    <message>
        <source>Tapering</source>
        <translation>Tapering</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Taskbar</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Template</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text Mode</source>
        <translation>Text Mode</translation>
    </message>
    <message>
        <source>The APP will reload data when switching machines.</source>
        <translation>The APP will reload data when switching machines.</translation>
    </message>
    <message>
        <source>The APP will restart automatically when switching languages.</source>
        <translation>The APP will restart automatically when switching languages.</translation>
    </message>
    <message>
        <source>The LED matrix moves with the sound that this computer plays. Close = off, Open = on.</source>
        <translation>The LED matrix moves with the sound that this computer plays. Close = off, Open = on.</translation>
    </message>
    <message>
        <source>The accessory becomes the next of its models; the button is up while it is the first</source>
        <translation>The accessory becomes the next of its models; the button is up while it is the first</translation>
    </message>
    <message>
        <source>The accessory cannot be reached. What you choose goes to it with the next change.</source>
        <translation>The accessory cannot be reached. What you choose goes to it with the next change.</translation>
    </message>
    <message>
        <source>The accessory did not take everything.</source>
        <translation>The accessory did not take everything.</translation>
    </message>
    <message>
        <source>The accessory has it, but Animate Mode cannot show it: %1</source>
        <translation>The accessory has it, but Animate Mode cannot show it: %1</translation>
    </message>
    <message>
        <source>The accessory is at work: wait until it has finished, or cancel the work on its page.</source>
        <translation>The accessory is at work: wait until it has finished, or cancel the work on its page.</translation>
    </message>
    <message>
        <source>The accessory shows what this computer plays as soon as the music mode is open.</source>
        <translation>The accessory shows what this computer plays as soon as the music mode is open.</translation>
    </message>
    <message>
        <source>The accessory takes %1 of the %2 frames.</source>
        <translation>The accessory takes %1 of the %2 frames.</translation>
    </message>
    <message>
        <source>The accessory takes no report until the button is released</source>
        <translation>The accessory takes no report until the button is released</translation>
    </message>
    <message>
        <source>The answer to the next read never arrives</source>
        <translation>The answer to the next read never arrives</translation>
    </message>
    <message>
        <source>The belt stands still in its colour.</source>
        <translation>The belt stands still in its colour.</translation>
    </message>
    <message>
        <source>The brightest light, for a bright room.</source>
        <translation>The brightest light, for a bright room.</translation>
    </message>
    <message>
        <source>The brightest light, seen across a bright room.</source>
        <translation>The brightest light, seen across a bright room.</translation>
    </message>
    <message>
        <source>The brightness follows the light in the room. Close = off, Open = on.</source>
        <translation>The brightness follows the light in the room. Close = off, Open = on.</translation>
    </message>
    <message>
        <source>The cable is pulled out at the eighth report from now</source>
        <translation>The cable is pulled out at the eighth report from now</translation>
    </message>
    <message>
        <source>The cable is pulled out until the button is released</source>
        <translation>The cable is pulled out until the button is released</translation>
    </message>
    <message>
        <source>The colour of the belt along the lower edge. Auto = runs through all colours.</source>
        <translation>The colour of the belt along the lower edge. Auto = runs through all colours.</translation>
    </message>
    <message>
        <source>The colour of the belt at the back of the foot.</source>
        <translation>The colour of the belt at the back of the foot.</translation>
    </message>
    <message>
        <source>The colour of the belt at the front of the foot.</source>
        <translation>The colour of the belt at the front of the foot.</translation>
    </message>
    <message>
        <source>The colour of the light on the desk. White is best for reading and writing.</source>
        <translation>The colour of the light on the desk. White is best for reading and writing.</translation>
    </message>
    <message>
        <source>The colour of the light on the wall behind the screen.</source>
        <translation>The colour of the light on the wall behind the screen.</translation>
    </message>
    <message>
        <source>The colour of the steady light and of the effects. Auto = runs through all colours.</source>
        <translation>The colour of the steady light and of the effects. Auto = runs through all colours.</translation>
    </message>
    <message>
        <source>The colours of the cinema.</source>
        <translation>The colours of the cinema.</translation>
    </message>
    <message>
        <source>The computer and its monitors sleep until the button is released</source>
        <translation>The computer and its monitors sleep until the button is released</translation>
    </message>
    <message>
        <source>The deepest black. A glow may show around bright things.</source>
        <translation>The deepest black. A glow may show around bright things.</translation>
    </message>
    <message>
        <source>The disk did not take everything.</source>
        <translation>The disk did not take everything.</translation>
    </message>
    <message>
        <source>The drawn frames are not saved. Save them now?</source>
        <translation>The drawn frames are not saved. Save them now?</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>The file cannot be read: %1</translation>
    </message>
    <message>
        <source>The file cannot be written: %1</source>
        <translation>The file cannot be written: %1</translation>
    </message>
    <message>
        <source>The file has become too large.</source>
        <translation>The file has become too large.</translation>
    </message>
    <message>
        <source>The file holds %1 frames; the first %2 were taken.</source>
        <translation>The file holds %1 frames; the first %2 were taken.</translation>
    </message>
    <message>
        <source>The file holds no whole frame.</source>
        <translation>The file holds no whole frame.</translation>
    </message>
    <message>
        <source>The form of the matrix that you have: what is shown is drawn for it.</source>
        <translation>The form of the matrix that you have: what is shown is drawn for it.</translation>
    </message>
    <message>
        <source>The grey scale of medical pictures.</source>
        <translation>The grey scale of medical pictures.</translation>
    </message>
    <message>
        <source>The hotkey you set is occupied,please reset it again!</source>
        <translation>The hotkey you set is occupied,please reset it again!</translation>
    </message>
    <message>
        <source>The lamp belt along the lower edge and around the foot has a light of its own.</source>
        <translation>The lamp belt along the lower edge and around the foot has a light of its own.</translation>
    </message>
    <message>
        <source>The lamp in front lights the desk, the one at the rear the wall: less contrast for tired eyes.</source>
        <translation>The lamp in front lights the desk, the one at the rear the wall: less contrast for tired eyes.</translation>
    </message>
    <message>
        <source>The lamp is dark. Only the picture tells that the monitor is on.</source>
        <translation>The lamp is dark. Only the picture tells that the monitor is on.</translation>
    </message>
    <message>
        <source>The lamps behind the screen are dark.</source>
        <translation>The lamps behind the screen are dark.</translation>
    </message>
    <message>
        <source>The lamps take the colours of the picture&apos;s edges. For films and games.</source>
        <translation>The lamps take the colours of the picture&apos;s edges. For films and games.</translation>
    </message>
    <message>
        <source>The language of the monitor&apos;s own menu, not of this tool.</source>
        <translation>The language of the monitor&apos;s own menu, not of this tool.</translation>
    </message>
    <message>
        <source>The layout has no such zone.</source>
        <translation>The layout has no such zone.</translation>
    </message>
    <message>
        <source>The left and the right half follow each its own side. For films.</source>
        <translation>The left and the right half follow each its own side. For films.</translation>
    </message>
    <message>
        <source>The light behind the picture is even. Best for text.</source>
        <translation>The light behind the picture is even. Best for text.</translation>
    </message>
    <message>
        <source>The light flows along the belt.</source>
        <translation>The light flows along the belt.</translation>
    </message>
    <message>
        <source>The light moves by itself. For games and guests.</source>
        <translation>The light moves by itself. For games and guests.</translation>
    </message>
    <message>
        <source>The lighting goes out and comes back with the screen.</source>
        <translation>The lighting goes out and comes back with the screen.</translation>
    </message>
    <message>
        <source>The lighting goes out by itself after this time. Close = it stays on.</source>
        <translation>The lighting goes out by itself after this time. Close = it stays on.</translation>
    </message>
    <message>
        <source>The lighting stays on while the monitor sleeps, as a light for the night.</source>
        <translation>The lighting stays on while the monitor sleeps, as a light for the night.</translation>
    </message>
    <message>
        <source>The maker&apos;s own tuning.</source>
        <translation>The maker&apos;s own tuning.</translation>
    </message>
    <message>
        <source>The matrix shows the time of day. Close = off, Open = on.</source>
        <translation>The matrix shows the time of day. Close = off, Open = on.</translation>
    </message>
    <message>
        <source>The monitor and devices at its HDMI sockets switch each other on and off.</source>
        <translation>The monitor and devices at its HDMI sockets switch each other on and off.</translation>
    </message>
    <message>
        <source>The monitor answers nothing until the button is released</source>
        <translation>The monitor answers nothing until the button is released</translation>
    </message>
    <message>
        <source>The monitor begins by itself when it goes to standby.</source>
        <translation>The monitor begins by itself when it goes to standby.</translation>
    </message>
    <message>
        <source>The monitor comes on faster, but needs more power while it is off.</source>
        <translation>The monitor comes on faster, but needs more power while it is off.</translation>
    </message>
    <message>
        <source>The monitor did not confirm this value.</source>
        <translation>The monitor did not confirm this value.</translation>
    </message>
    <message>
        <source>The monitor did not take &quot;%1&quot;.</source>
        <translation>The monitor did not take &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The monitor did not take the reset.</source>
        <translation>The monitor did not take the reset.</translation>
    </message>
    <message>
        <source>The monitor did not take the size.</source>
        <translation>The monitor did not take the size.</translation>
    </message>
    <message>
        <source>The monitor did not take this setting.</source>
        <translation>The monitor did not take this setting.</translation>
    </message>
    <message>
        <source>The monitor does not answer; the reading was given up.</source>
        <translation>The monitor does not answer; the reading was given up.</translation>
    </message>
    <message>
        <source>The monitor does not remind you.</source>
        <translation>The monitor does not remind you.</translation>
    </message>
    <message>
        <source>The monitor finds out which range the computer sends.</source>
        <translation>The monitor finds out which range the computer sends.</translation>
    </message>
    <message>
        <source>The monitor from behind, with its lamps</source>
        <translation>The monitor from behind, with its lamps</translation>
    </message>
    <message>
        <source>The monitor has a value that is none of these.</source>
        <translation>The monitor has a value that is none of these.</translation>
    </message>
    <message>
        <source>The monitor has not told this value yet.</source>
        <translation>The monitor has not told this value yet.</translation>
    </message>
    <message>
        <source>The monitor has not told when the next care is due.</source>
        <translation>The monitor has not told when the next care is due.</translation>
    </message>
    <message>
        <source>The monitor has not told yet which functions it has.</source>
        <translation>The monitor has not told yet which functions it has.</translation>
    </message>
    <message>
        <source>The monitor is changing its scene mode.</source>
        <translation>The monitor is changing its scene mode.</translation>
    </message>
    <message>
        <source>The monitor itself says on the screen that care is due.</source>
        <translation>The monitor itself says on the screen that care is due.</translation>
    </message>
    <message>
        <source>The monitor keeps pace with the game: no torn or jerky pictures. Game Rush must be off.</source>
        <translation>The monitor keeps pace with the game: no torn or jerky pictures. Game Rush must be off.</translation>
    </message>
    <message>
        <source>The monitor notices when its screen is turned upright. Close = off, Open = on.</source>
        <translation>The monitor notices when its screen is turned upright. Close = off, Open = on.</translation>
    </message>
    <message>
        <source>The monitor reminds you each time that this has passed. Look far away for a minute then.</source>
        <translation>The monitor reminds you each time that this has passed. Look far away for a minute then.</translation>
    </message>
    <message>
        <source>The monitor takes no value until the button is released</source>
        <translation>The monitor takes no value until the button is released</translation>
    </message>
    <message>
        <source>The monitor that this was about is no longer in use. Nothing was sent.</source>
        <translation>The monitor that this was about is no longer in use. Nothing was sent.</translation>
    </message>
    <message>
        <source>The monitor took only a part of the colour: its lamps now show another one.</source>
        <translation>The monitor took only a part of the colour: its lamps now show another one.</translation>
    </message>
    <message>
        <source>The monitor uses less power. Close = off, Level2 saves the most.</source>
        <translation>The monitor uses less power. Close = off, Level2 saves the most.</translation>
    </message>
    <message>
        <source>The next care is due after %1 more hours of use.</source>
        <translation>The next care is due after %1 more hours of use.</translation>
    </message>
    <message>
        <source>The next client is not initialised</source>
        <translation>The next client is not initialised</translation>
    </message>
    <message>
        <source>The next packet cannot be fetched</source>
        <translation>The next packet cannot be fetched</translation>
    </message>
    <message>
        <source>The next packet is refused, as if the one before were still held</source>
        <translation>The next packet is refused, as if the one before were still held</translation>
    </message>
    <message>
        <source>The page %1 could not be opened.</source>
        <translation>The page %1 could not be opened.</translation>
    </message>
    <message>
        <source>The picture as the factory set it.</source>
        <translation>The picture as the factory set it.</translation>
    </message>
    <message>
        <source>The picture goes black for about 6 minutes, and the monitor must stay on. Begin now?</source>
        <translation>The picture goes black for about 6 minutes, and the monitor must stay on. Begin now?</translation>
    </message>
    <message>
        <source>The picture stays where it is.</source>
        <translation>The picture stays where it is.</translation>
    </message>
    <message>
        <source>The program could not be restarted. It goes on as it was.</source>
        <translation>The program could not be restarted. It goes on as it was.</translation>
    </message>
    <message>
        <source>The program has not registered this combination.</source>
        <translation>The program has not registered this combination.</translation>
    </message>
    <message>
        <source>The program has this combination already.</source>
        <translation>The program has this combination already.</translation>
    </message>
    <message>
        <source>The program heard it.</source>
        <translation>The program heard it.</translation>
    </message>
    <message>
        <source>The recording could not be begun: %1</source>
        <translation>The recording could not be begun: %1</translation>
    </message>
    <message>
        <source>The report is on the clipboard. It names no files, programs or users.</source>
        <translation>The report is on the clipboard. It names no files, programs or users.</translation>
    </message>
    <message>
        <source>The selected display is unsupported or the signal line is disconnected.</source>
        <translation>The selected display is unsupported or the signal line is disconnected.</translation>
    </message>
    <message>
        <source>The sharpest motion for shooters.</source>
        <translation>The sharpest motion for shooters.</translation>
    </message>
    <message>
        <source>The sharpest movement, for the fastest games.</source>
        <translation>The sharpest movement, for the fastest games.</translation>
    </message>
    <message>
        <source>The simulated monitor that is shown here</source>
        <translation>The simulated monitor that is shown here</translation>
    </message>
    <message>
        <source>The smallest one. Covers least.</source>
        <translation>The smallest one. Covers least.</translation>
    </message>
    <message>
        <source>The socket that has a signal. For one computer, or one at a time.</source>
        <translation>The socket that has a signal. For one computer, or one at a time.</translation>
    </message>
    <message>
        <source>The sound as it comes, for music and all else.</source>
        <translation>The sound as it comes, for music and all else.</translation>
    </message>
    <message>
        <source>The sound of the monitor. Audio Mute: Close = sound, Open = silence. Convo = for voices.</source>
        <translation>The sound of the monitor. Audio Mute: Close = sound, Open = silence. Convo = for voices.</translation>
    </message>
    <message>
        <source>The sound output cannot be listened to. It is tried again every few seconds.</source>
        <translation>The sound output cannot be listened to. It is tried again every few seconds.</translation>
    </message>
    <message>
        <source>The standard of the web.</source>
        <translation>The standard of the web.</translation>
    </message>
    <message>
        <source>The system did not allow &quot;%1&quot; to be changed.</source>
        <translation>The system did not allow &quot;%1&quot; to be changed.</translation>
    </message>
    <message>
        <source>The system did not move the window.</source>
        <translation>The system did not move the window.</translation>
    </message>
    <message>
        <source>The system does not tell which screen the window is on.</source>
        <translation>The system does not tell which screen the window is on.</translation>
    </message>
    <message>
        <source>The system&apos;s audio service is down until the button is released</source>
        <translation>The system&apos;s audio service is down until the button is released</translation>
    </message>
    <message>
        <source>The text is too long: %1 of its %2 characters fit.</source>
        <translation>The text is too long: %1 of its %2 characters fit.</translation>
    </message>
    <message>
        <source>The upgrade program %1 could not be started.</source>
        <translation>The upgrade program %1 could not be started.</translation>
    </message>
    <message>
        <source>The upgrade program is running already.</source>
        <translation>The upgrade program is running already.</translation>
    </message>
    <message>
        <source>The usual for web, office, photos and most games.</source>
        <translation>The usual for web, office, photos and most games.</translation>
    </message>
    <message>
        <source>The usual light.</source>
        <translation>The usual light.</translation>
    </message>
    <message>
        <source>The usual white for web, photos and films.</source>
        <translation>The usual white for web, photos and films.</translation>
    </message>
    <message>
        <source>The version of your monitor&apos;s firmware.</source>
        <translation>The version of your monitor&apos;s firmware.</translation>
    </message>
    <message>
        <source>The white of printed paper.</source>
        <translation>The white of printed paper.</translation>
    </message>
    <message>
        <source>The whole belt comes and goes slowly.</source>
        <translation>The whole belt comes and goes slowly.</translation>
    </message>
    <message>
        <source>The whole belt flashes. Hard to bear beside work.</source>
        <translation>The whole belt flashes. Hard to bear beside work.</translation>
    </message>
    <message>
        <source>The window cannot be resized.</source>
        <translation>The window cannot be resized.</translation>
    </message>
    <message>
        <source>The window fills the whole screen: end its full screen first.</source>
        <translation>The window fills the whole screen: end its full screen first.</translation>
    </message>
    <message>
        <source>The window is minimised.</source>
        <translation>The window is minimised.</translation>
    </message>
    <message>
        <source>The window was not put into a zone, so it has no old place.</source>
        <translation>The window was not put into a zone, so it has no old place.</translation>
    </message>
    <message>
        <source>The window&apos;s program does not answer.</source>
        <translation>The window&apos;s program does not answer.</translation>
    </message>
    <message>
        <source>The window&apos;s program has more rights than this one and cannot be moved.</source>
        <translation>The window&apos;s program has more rights than this one and cannot be moved.</translation>
    </message>
    <message>
        <source>The zone is too small to be cut.</source>
        <translation>The zone is too small to be cut.</translation>
    </message>
    <message>
        <source>There are as many layouts as there can be. Delete one first.</source>
        <translation>There are as many layouts as there can be. Delete one first.</translation>
    </message>
    <message>
        <source>There is no sound output until the button is released</source>
        <translation>There is no sound output until the button is released</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>There is no such file.</translation>
    </message>
    <message>
        <source>There is no text yet.</source>
        <translation>There is no text yet.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>There is nothing to redo.</translation>
    </message>
    <message>
        <source>There is nothing to set here yet.</source>
        <translation>There is nothing to set here yet.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>There is nothing to undo.</translation>
    </message>
    <message>
        <source>Thirds</source>
        <translation>Thirds</translation>
    </message>
    <message>
        <source>This function has its row already.</source>
        <translation>This function has its row already.</translation>
    </message>
    <message>
        <source>This is the light of the mode &quot;Eye Care&quot;.</source>
        <translation>This is the light of the mode &quot;Eye Care&quot;.</translation>
    </message>
    <message>
        <source>This layout stays as it is. &quot;New layout&quot; makes one of your own of it.</source>
        <translation>This layout stays as it is. &quot;New layout&quot; makes one of your own of it.</translation>
    </message>
    <message>
        <source>This monitor</source>
        <translation>This monitor</translation>
    </message>
    <message>
        <source>This monitor does not have these functions.</source>
        <translation>This monitor does not have these functions.</translation>
    </message>
    <message>
        <source>This monitor may not have it; else read everything once.</source>
        <translation>This monitor may not have it; else read everything once.</translation>
    </message>
    <message>
        <source>This slider counts while Color Temperature is Night View C.T.</source>
        <translation>This slider counts while Color Temperature is Night View C.T.</translation>
    </message>
    <message>
        <source>This tool says on the desktop that care is due: never over a program that fills the screen.</source>
        <translation>This tool says on the desktop that care is due: never over a program that fills the screen.</translation>
    </message>
    <message>
        <source>Three columns and three rows.</source>
        <translation>Three columns and three rows.</translation>
    </message>
    <message>
        <source>Three columns and two rows.</source>
        <translation>Three columns and two rows.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Time to rest your eyes for a while.</source>
        <translation>Time to rest your eyes for a while.</translation>
    </message>
    <message>
        <source>Time, read or write, code, value and what became of it</source>
        <translation>Time, read or write, code, value and what became of it</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Times</translation>
    </message>
    <message>
        <source>To know how long a round has gone on without looking away.</source>
        <translation>To know how long a round has gone on without looking away.</translation>
    </message>
    <message>
        <source>To see how the reminder looks.</source>
        <translation>To see how the reminder looks.</translation>
    </message>
    <message>
        <source>To see whether a game runs as smoothly as the monitor could show it.</source>
        <translation>To see whether a game runs as smoothly as the monitor could show it.</translation>
    </message>
    <message>
        <source>To stop in time.</source>
        <translation>To stop in time.</translation>
    </message>
    <message>
        <source>Today&apos;s automatic changes of this monitor are used up (%1). They go on tomorrow; what you set yourself is not limited.</source>
        <translation>Today&apos;s automatic changes of this monitor are used up (%1). They go on tomorrow; what you set yourself is not limited.</translation>
    </message>
    <message>
        <source>Tool Settings</source>
        <translation>Tool Settings</translation>
    </message>
    <message>
        <source>Tool Version: </source>
        <translation>Tool Version: </translation>
    </message>
    <message>
        <source>Tool language settings</source>
        <translation>Tool language settings</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>Top Left</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Top Right</translation>
    </message>
    <message>
        <source>Topspeed</source>
        <translation>Topspeed</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparency</translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation>Triangle</translation>
    </message>
    <message>
        <source>Trichotomy</source>
        <translation>Trichotomy</translation>
    </message>
    <message>
        <source>Triple Kill</source>
        <translation>Triple Kill</translation>
    </message>
    <message>
        <source>True colours for design work.</source>
        <translation>True colours for design work.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>Try again; its scene or another setting may forbid it.</source>
        <translation>Try again; its scene or another setting may forbid it.</translation>
    </message>
    <message>
        <source>Two columns and two rows.</source>
        <translation>Two columns and two rows.</translation>
    </message>
    <message>
        <source>Two tones</source>
        <translation>Two tones</translation>
    </message>
    <message>
        <source>Type the combination here, then press it on the whole desktop</source>
        <translation>Type the combination here, then press it on the whole desktop</translation>
    </message>
    <message>
        <source>Type the text for the matrix.</source>
        <translation>Type the text for the matrix.</translation>
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
        <translation>USB Power</translation>
    </message>
    <message>
        <source>USB Switch</source>
        <translation>USB Switch</translation>
    </message>
    <message>
        <source>Ull-Level1</source>
        <translation>Ull-Level1</translation>
    </message>
    <message>
        <source>Ull-Level2</source>
        <translation>Ull-Level2</translation>
    </message>
    <message>
        <source>Ull-Level3</source>
        <translation>Ull-Level3</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>Unplug</translation>
    </message>
    <message>
        <source>Unplugged</source>
        <translation>Unplugged</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Upgrade</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Upload</translation>
    </message>
    <message>
        <source>Uploaded for another form of the matrix.</source>
        <translation>Uploaded for another form of the matrix.</translation>
    </message>
    <message>
        <source>Use and care of the last five weeks</source>
        <translation>Use and care of the last five weeks</translation>
    </message>
    <message>
        <source>User1</source>
        <translation>User1</translation>
    </message>
    <message>
        <source>User1 R G B</source>
        <translation>User1 R G B</translation>
    </message>
    <message>
        <source>User2</source>
        <translation>User2</translation>
    </message>
    <message>
        <source>User2 R G B</source>
        <translation>User2 R G B</translation>
    </message>
    <message>
        <source>User3</source>
        <translation>User3</translation>
    </message>
    <message>
        <source>User3 R G B</source>
        <translation>User3 R G B</translation>
    </message>
    <message>
        <source>UserB</source>
        <translation>UserB</translation>
    </message>
    <message>
        <source>UserG</source>
        <translation>UserG</translation>
    </message>
    <message>
        <source>UserR</source>
        <translation>UserR</translation>
    </message>
    <message>
        <source>V-Position</source>
        <translation>V-Position</translation>
    </message>
    <message>
        <source>Value before</source>
        <translation>Value before</translation>
    </message>
    <message>
        <source>Very bright middle tones: shows what hides in the dark.</source>
        <translation>Very bright middle tones: shows what hides in the dark.</translation>
    </message>
    <message>
        <source>Very cool, bluish white, as on old screens.</source>
        <translation>Very cool, bluish white, as on old screens.</translation>
    </message>
    <message>
        <source>Victory</source>
        <translation>Victory</translation>
    </message>
    <message>
        <source>Visibly darker, for long days with the same windows.</source>
        <translation>Visibly darker, for long days with the same windows.</translation>
    </message>
    <message>
        <source>Vivid colours for animation.</source>
        <translation>Vivid colours for animation.</translation>
    </message>
    <message>
        <source>Voices come forward, for talks and conferences.</source>
        <translation>Voices come forward, for talks and conferences.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Waits long before it dims: good for reading.</source>
        <translation>Waits long before it dims: good for reading.</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Warm</translation>
    </message>
    <message>
        <source>Warm white for the evening. The slider below says how warm.</source>
        <translation>Warm white for the evening. The slider below says how warm.</translation>
    </message>
    <message>
        <source>Warm white, as paper under the lamps of a print shop.</source>
        <translation>Warm white, as paper under the lamps of a print shop.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Water</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Wave</translation>
    </message>
    <message>
        <source>Web(sRGB)</source>
        <translation>Web(sRGB)</translation>
    </message>
    <message>
        <source>What goes wrong</source>
        <translation>What goes wrong</translation>
    </message>
    <message>
        <source>What is asked and answered is recorded in %1</source>
        <translation>What is asked and answered is recorded in %1</translation>
    </message>
    <message>
        <source>What it looks like</source>
        <translation>What it looks like</translation>
    </message>
    <message>
        <source>What most visitors of a page see.</source>
        <translation>What most visitors of a page see.</translation>
    </message>
    <message>
        <source>What moves looks a little sharper. Good for films.</source>
        <translation>What moves looks a little sharper. Good for films.</translation>
    </message>
    <message>
        <source>What moves looks clearly sharper. Good for sport.</source>
        <translation>What moves looks clearly sharper. Good for sport.</translation>
    </message>
    <message>
        <source>What plays</source>
        <translation>What plays</translation>
    </message>
    <message>
        <source>Wheel: one step · Tab, arrows · Esc closes</source>
        <translation>Wheel: one step · Tab, arrows · Esc closes</translation>
    </message>
    <message>
        <source>When the lighting goes out by itself, and whether it stays on in standby.</source>
        <translation>When the lighting goes out by itself, and whether it stays on in standby.</translation>
    </message>
    <message>
        <source>Where others pass by, or a hand easily touches the monitor&apos;s buttons.</source>
        <translation>Where others pass by, or a hand easily touches the monitor&apos;s buttons.</translation>
    </message>
    <message>
        <source>Which cable the monitor&apos;s USB sockets go to, and how fast the picture comes through DP or Type-C.</source>
        <translation>Which cable the monitor&apos;s USB sockets go to, and how fast the picture comes through DP or Type-C.</translation>
    </message>
    <message>
        <source>Which events of a game the matrix celebrates, how often and how bright.</source>
        <translation>Which events of a game the matrix celebrates, how often and how bright.</translation>
    </message>
    <message>
        <source>Which of the uploaded animations the matrix plays.</source>
        <translation>Which of the uploaded animations the matrix plays.</translation>
    </message>
    <message>
        <source>Which of your monitors this tool sets.</source>
        <translation>Which of your monitors this tool sets.</translation>
    </message>
    <message>
        <source>Which socket the picture comes from. Auto = the one that has a signal.</source>
        <translation>Which socket the picture comes from. Auto = the one that has a signal.</translation>
    </message>
    <message>
        <source>Which way round the light runs, as seen from behind.</source>
        <translation>Which way round the light runs, as seen from behind.</translation>
    </message>
    <message>
        <source>White</source>
        <translation>White</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Windows</translation>
    </message>
    <message>
        <source>With the factory parameters</source>
        <translation>With the factory parameters</translation>
    </message>
    <message>
        <source>With your own parameters</source>
        <translation>With your own parameters</translation>
    </message>
    <message>
        <source>Write Animate</source>
        <translation>Write Animate</translation>
    </message>
    <message>
        <source>Write Data</source>
        <translation>Write Data</translation>
    </message>
    <message>
        <source>Written today</source>
        <translation>Written today</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Your own picture. Changes are sent to the monitor as you make them.</source>
        <translation>Your own picture. Changes are sent to the monitor as you make them.</translation>
    </message>
    <message>
        <source>Zelmar</source>
        <translation>Zelmar</translation>
    </message>
    <message>
        <source>Zelmar Mode</source>
        <translation>Zelmar Mode</translation>
    </message>
    <message>
        <source>Zone %1 of %2</source>
        <translation>Zone %1 of %2</translation>
    </message>
    <message>
        <source>Zone before</source>
        <translation>Zone before</translation>
    </message>
    <message>
        <source>Zones for %1</source>
        <translation>Zones for %1</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>adjusted</source>
        <translation>adjusted</translation>
    </message>
    <message>
        <source>all succeeded</source>
        <translation>all succeeded</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connected</translation>
    </message>
    <message>
        <source>deaf</source>
        <translation>deaf</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>firmware %1</translation>
    </message>
    <message>
        <source>garbled</source>
        <translation>garbled</translation>
    </message>
    <message>
        <source>https://</source>
        <translation>https://</translation>
    </message>
    <message>
        <source>lamp off</source>
        <translation>lamp off</translation>
    </message>
    <message>
        <source>live</source>
        <translation>live</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>lost</translation>
    </message>
    <message>
        <source>made %1</source>
        <translation>made %1</translation>
    </message>
    <message>
        <source>made %1, week %2</source>
        <translation>made %1, week %2</translation>
    </message>
    <message>
        <source>mode %1</source>
        <translation>mode %1</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>no answer</translation>
    </message>
    <message>
        <source>no monitor</source>
        <translation>no monitor</translation>
    </message>
    <message>
        <source>none needed</source>
        <translation>none needed</translation>
    </message>
    <message>
        <source>not a WAV file of 16-bit or floating-point samples</source>
        <translation>not a WAV file of 16-bit or floating-point samples</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nothing</translation>
    </message>
    <message>
        <source>nothing asked yet</source>
        <translation>nothing asked yet</translation>
    </message>
    <message>
        <source>now</source>
        <translation>now</translation>
    </message>
    <message>
        <source>off</source>
        <translation>off</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>on</source>
        <translation>on</translation>
    </message>
    <message>
        <source>open</source>
        <translation>open</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refused</translation>
    </message>
    <message>
        <source>sRGB</source>
        <translation>sRGB</translation>
    </message>
    <message>
        <source>sRGB Mode</source>
        <translation>sRGB Mode</translation>
    </message>
    <message>
        <source>sRGB primaries with gamma 2.2.</source>
        <translation>sRGB primaries with gamma 2.2.</translation>
    </message>
    <message>
        <source>sRGB(2.2)</source>
        <translation>sRGB(2.2)</translation>
    </message>
    <message>
        <source>sRGB(2.2) Mode</source>
        <translation>sRGB(2.2) Mode</translation>
    </message>
    <message>
        <source>serial %1</source>
        <translation>serial %1</translation>
    </message>
    <message>
        <source>slowest %1</source>
        <translation>slowest %1</translation>
    </message>
    <message>
        <source>text</source>
        <translation>text</translation>
    </message>
    <message>
        <source>unexpected</source>
        <translation>unexpected</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>unplugged</source>
        <translation>unplugged</translation>
    </message>
    <message>
        <source>upload</source>
        <translation>upload</translation>
    </message>
    <message>
        <source>x1.5</source>
        <translation>x1.5</translation>
    </message>
    <message>
        <source>x2</source>
        <translation>x2</translation>
    </message>
    <message>
        <source>x4</source>
        <translation>x4</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Drive</translation>
    </message>
    <message>
        <source>File Folder</source>
        <comment>Match Windows Explorer</comment>
        <translation>File Folder</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <comment>All other platforms</comment>
        <translation>Shortcut</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Select All</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Step up</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Step &amp;down</translation>
    </message>
</context>
<context>
    <name>QColorDialog</name>
    <message>
        <source>&amp;Add to Custom Colors</source>
        <translation>&amp;Add to Custom Colors</translation>
    </message>
    <message>
        <source>&amp;Basic colors</source>
        <translation>&amp;Basic colors</translation>
    </message>
    <message>
        <source>&amp;Custom colors</source>
        <translation>&amp;Custom colors</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>&amp;Green:</translation>
    </message>
    <message>
        <source>&amp;HTML:</source>
        <translation>&amp;HTML:</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Color</source>
        <translation>&amp;Pick Screen Color</translation>
    </message>
    <message>
        <source>&amp;Red:</source>
        <translation>&amp;Red:</translation>
    </message>
    <message>
        <source>&amp;Sat:</source>
        <translation>&amp;Sat:</translation>
    </message>
    <message>
        <source>&amp;Val:</source>
        <translation>&amp;Val:</translation>
    </message>
    <message>
        <source>A&amp;lpha channel:</source>
        <translation>A&amp;lpha channel:</translation>
    </message>
    <message>
        <source>Bl&amp;ue:</source>
        <translation>Bl&amp;ue:</translation>
    </message>
    <message>
        <source>Cursor at %1, %2
Press ESC to cancel</source>
        <translation>Cursor at %1, %2
Press ESC to cancel</translation>
    </message>
    <message>
        <source>Hu&amp;e:</source>
        <translation>Hu&amp;e:</translation>
    </message>
    <message>
        <source>Select Color</source>
        <translation>Select Color</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Directory not found.
Please verify the correct directory name was given.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
File not found.
Please verify the correct file name was given.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 already exists.
Do you want to replace it?</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Choose</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;New Folder</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rename</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>All Files (*)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>All files (*)</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Are you sure you want to delete &apos;%1&apos;?</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Change to detail view mode</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Change to list view mode</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Could not delete directory.</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Create New Folder</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Create a New Folder</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detail View</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Directories</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Directory:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>File &amp;name:</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Files of type:</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Go back</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Go forward</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Go to the parent directory</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>List View</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>List of places and bookmarks</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Look in:</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>New Folder</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Parent Directory</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Recent Places</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Show </translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Show &amp;hidden files</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Sidebar</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Date Modified</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>My Computer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Type</source>
        <comment>All other platforms</comment>
        <translation>Type</translation>
    </message>
</context>
<context>
    <name>QKeySequenceEdit</name>
    <message>
        <source>Press shortcut</source>
        <translation>Press shortcut</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Bottom</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Left edge</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Page down</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Page left</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Page right</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Page up</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Right edge</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scroll down</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>Scroll here</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Scroll left</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scroll right</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scroll up</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Top</translation>
    </message>
</context>
<context>
    <name>QSidebar</name>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
</context>
<context>
    <name>QTabBar</name>
    <message>
        <source>Scroll Left</source>
        <translation>Scroll Left</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Scroll Right</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
</context>
</TS>
