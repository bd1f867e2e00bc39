"""The music mode: what a sound device plays is shown as bars on the accessory."""

import cmath
import math

from cases_accessory import LIVE_STOP, happened, report, with_accessory
from casekit import open_page
from rig import put, wait_for

LIVE_FRAME = "01 E0 00 "

# The rectangle: a bar is two cells wide, on every fourth column, its foot in the last row.
ROWS, COLUMNS, CHUNKS = 25, 42, 19
FULL_HEIGHT = 3 * 25 + 1

AMPLITUDE = 8000
EDGES = (100, 150, 205, 300, 400, 500, 800, 1000, 1600, 2049, 3000, 6400)


def tone_heights(tone, rate, channels, packet, length):
    """The heights that a tone gives when its packets, whole periods each, are all alike. The transform hears a zero
    behind each sample, the channels one after the other: a bar's place does not follow from the frequency alone."""
    samples = [round(AMPLITUDE * math.sin(2 * math.pi * (tone * frame % rate) / rate))
               for frame in range(packet) for _ in range(channels)]
    turn = [cmath.exp(-2j * math.pi * step / length) for step in range(length)]
    bins = length // 2 + 1
    known = min(len(samples) // 2 + 1, bins)

    def magnitude(k):
        return abs(sum(sample * turn[2 * place * k % length] for place, sample in enumerate(samples[:length // 2])))

    edges = [edge * bins // 22050 for edge in EDGES]
    logs = [math.log10(sum(magnitude(k) for k in range(low, min(high, known))) / ((bins + 10) // 11))
            for low, high in zip(edges, edges[1:])]
    least, most = min(logs), max(logs)
    return [int((log - least) / (most - least) * 25 * 3 + 1) for log in logs]


def frame_of(heights):
    """The rows of a frame that shows the heights, as texts of digits."""
    lit = [1 + (height - 1) * (ROWS - 1) // (FULL_HEIGHT - 1) for height in heights]
    return ["00".join("11" if row >= ROWS - steps else "00" for steps in lit) for row in range(ROWS)]


def live_chunks(run):
    return [bytes.fromhex(line) for line in happened(run) if line.startswith(LIVE_FRAME)]


def last_frame(run):
    """The rows of the last frame that went out whole; none before the first."""
    chunks = live_chunks(run)
    while chunks and chunks[-1][5:7] != bytes((0, CHUNKS)):
        chunks.pop()
    digits = ""
    for number, chunk in enumerate(chunks[-CHUNKS:], 1):
        assert chunk[3:7] == bytes((0, CHUNKS, 0, number)), chunk
        assert report(chunk[1:-2]) == chunk.hex(" ").upper(), chunk
        assert set(chunk[7:-2]) <= {0, 0xFF}, chunk
        digits += "".join("1" if cell else "0" for cell in chunk[7:-2])
    return [digits[place:place + COLUMNS] for place in range(0, len(digits), COLUMNS)]


def asked(run):
    """What happened to the sound device."""
    file = run.sound / "happened.txt"
    return file.read_text().splitlines() if file.exists() else []


def play(run, *lines):
    put(run.sound / "sound.txt", "".join(line + "\n" for line in lines))


def initialize(rate, channels):
    """Shared, loopback, ten periods of 10 ms; extensible, 16 bits."""
    return f"initialize 0 20000 1000000 0 FFFE {channels} {rate} 16 {2 * channels} {2 * channels * rate}"


def opened(rate=48000, channels=2):
    return ["endpoint", "activate", initialize(rate, channels)]


def with_sound(rig, name):
    run = with_accessory(rig, name)
    run.sound = run.folder / "sound"
    run.sound.mkdir()
    (run.folder / "config.ini").write_text("[NightLoom]\nMatrixForm=1\n")
    return run


def switch_on(run):
    run.start_and_show()
    open_page(run, "Night Loom", "Music Mode")
    run.click("Music Mode_Open")


def switch_off(run):
    """The last report stops the live frames, and nothing is left of the capture."""
    run.click("Music Mode_Close")
    wait_for(lambda: report(LIVE_STOP) in happened(run) and asked(run)[-1] == "gone", "the end of the capture")
    assert happened(run)[-1] == report(LIVE_STOP), happened(run)[-1]


def failures(run):
    """What the log says of failures of the sound."""
    lines = [line.split("\t")[-1].strip() for line in run.log() if "soundanalyzer.cpp" in line]
    return [line for line in lines if not line.startswith("QList(")]


def expect_bars(run, sound, highest):
    heights = tone_heights(*sound)
    assert heights.index(FULL_HEIGHT) == highest and heights.count(FULL_HEIGHT) == 1, heights
    wait_for(lambda: last_frame(run) == frame_of(heights), f"bars of {heights}")
    assert run.logged(f"QList({', '.join(map(str, heights))})"), run.log()[-1]


def case_music_bars(rig):
    """Tones are shown as the bars that follow from them, also after the device has become another one; silence shows
    nothing new; switched off, the accessory is told so and the device is let go."""
    with with_sound(rig, "music_bars") as run:
        play(run, "tone 1900")
        switch_on(run)
        expect_bars(run, (1900, 48000, 2, 480, 4800), 4)
        play(run, "tone 8000")
        expect_bars(run, (8000, 48000, 2, 480, 4800), 8)
        assert asked(run) == opened() and not failures(run), asked(run)
        play(run, "tone 3000", "rate 44100", "channels 8", "packet 441", "fail next 88890004 1")
        expect_bars(run, (3000, 44100, 8, 441, 4800), 1)
        assert asked(run) == opened() + opened(44100, 8), asked(run)
        assert failures(run) == ["DEVICE_INVALIDATED", "FAILED(hr)1 0x88890004"], failures(run)

        # The buffer of a silent packet is never given back, which leads to a new start each time.
        seen = len(asked(run))
        play(run, "tone 0", "rate 44100", "channels 8", "packet 441")
        wait_for(lambda: len(asked(run)) >= seen + 3, "the first new start")
        shown = len(live_chunks(run))
        wait_for(lambda: len(asked(run)) >= seen + 30, "the tenth")
        assert len(live_chunks(run)) - shown <= CHUNKS, "frames of silence"  # one may have been under way
        play(run, "tone 3000", "rate 44100", "channels 8", "packet 441")
        wait_for(lambda: len(live_chunks(run)) > shown + CHUNKS, "bars again")
        switch_off(run)


def case_music_log_off(rig):
    """Logging off in music mode takes the last bars off the matrix."""
    with with_sound(rig, "music_log_off") as run:
        play(run, "tone 1900")
        switch_on(run)
        wait_for(lambda: len(live_chunks(run)) > CHUNKS, "bars")
        run.announce("session")
        assert run.processes[0].wait(3) == 0, run.processes[0].returncode
        assert happened(run)[-2:] == [report(LIVE_STOP), "close"], happened(run)[-2:]


def case_music_failures(rig):
    """Each failure of the sound is answered in its way and logged, and the bars go on."""
    lost = ["DEVICE_INVALIDATED", "FAILED(hr)1 0x88890004"]
    stopped = ["The Windows audio service is not running.", "FAILED(hr)1 0x88890010"]
    with with_sound(rig, "music_failures") as run:
        play(run, "tone 1900")
        switch_on(run)
        wait_for(lambda: live_chunks(run), "the first bars")
        for faults, events, logged in (
                (["next 88890004 1"], opened(), lost),
                (["next 88890010 3"], opened() * 3, stopped * 3),
                (["next 88890010 2", "activate 88890010 1"], opened()[:2] + opened(), stopped * 2),
                (["next 88890004 1", "endpoint 80070490 1"], opened()[:1] + opened(), lost * 2),
                (["next 88890004 1", "initialize 88890008 1"], opened() * 2,
                 ["initialization failed. 0x88890008", *lost, *lost]),
                (["buffer 88890018 1"], ["reset"], []),
                (["buffer 88890007 1"], opened(), []),
                (["buffer 88890017 1"], [], ["FAILED(hr)2 0x88890017"])):
            seen, said = len(asked(run)), len(failures(run))
            play(run, "tone 1900", *(f"fail {fault}" for fault in faults))
            wait_for(lambda: len(asked(run)) >= seen + len(events) and len(failures(run)) >= said + len(logged),
                     f"the answer to {faults}")
            shown = len(live_chunks(run))
            wait_for(lambda: len(live_chunks(run)) > shown + CHUNKS, f"bars after {faults}")
            assert asked(run)[seen:] == events, (faults, asked(run)[seen:])
            assert failures(run)[said:] == logged, (faults, failures(run)[said:])
        switch_off(run)


def case_music_no_endpoint(rig):
    """Without a device, or with one whose samples are not understood, nothing is logged or shown. It is looked for
    again until there is one."""
    with with_sound(rig, "music_no_endpoint") as run:
        switch_on(run)
        none = ["endpoint", "gone"]
        wait_for(lambda: asked(run) == none * 2, "the second look")
        play(run, "tone 1900", "integer")
        wait_for(lambda: asked(run)[4:] == ["endpoint", "activate", "gone"], "the look at the device")
        assert not live_chunks(run) and not failures(run), run.log()
        play(run, "tone 1900")
        expect_bars(run, (1900, 48000, 2, 480, 4800), 4)
        switch_off(run)
