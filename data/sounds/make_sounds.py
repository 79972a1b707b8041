#!/usr/bin/env python3
"""Makes the program's three sounds, beside this file: a start, a file generated, a goodbye.

Each is a few bell tones one after the other. The same script gives the same bytes.
"""

import math
import struct
import wave
from pathlib import Path

RATE = 22050
PEAK = 0.6
# Overtones of the bell: multiple of the tone, loudness, seconds until it has faded to a third.
OVERTONES = [(1.0, 1.0, 0.30), (2.0, 0.45, 0.18), (3.01, 0.20, 0.10), (4.1, 0.08, 0.06)]
ATTACK = 0.005
FADE_OUT = 0.08

# Name: total seconds, then the tones as (start, MIDI number of the note, loudness).
SOUNDS = {
    "mdbwav0": (1.20, [(0.00, 67, 0.8), (0.14, 72, 0.8), (0.28, 76, 0.9), (0.42, 79, 1.0)]),
    "mdbwav1": (0.70, [(0.00, 76, 0.9), (0.11, 83, 1.0)]),
    "mdbwav7": (1.30, [(0.00, 79, 1.0), (0.16, 76, 0.9), (0.32, 72, 0.8), (0.48, 60, 0.7)]),
}


def bell(note, seconds):
    """Level of a bell tone, `seconds` after its stroke."""
    if seconds < 0:
        return 0.0
    frequency = 440.0 * 2 ** ((note - 69) / 12)
    level = sum(loudness * math.exp(-seconds / decay) *
                math.sin(2 * math.pi * frequency * multiple * seconds)
                for multiple, loudness, decay in OVERTONES)
    return level * min(1.0, seconds / ATTACK)


def samples_of(length, tones):
    count = round(length * RATE)
    levels = []
    for i in range(count):
        seconds = i / RATE
        level = sum(loudness * bell(note, seconds - start) for start, note, loudness in tones)
        levels.append(level * min(1.0, (length - seconds) / FADE_OUT))
    scale = PEAK * 32767 / max(abs(level) for level in levels)
    return [round(level * scale) for level in levels]


def main():
    folder = Path(__file__).resolve().parent
    for name, (length, tones) in SOUNDS.items():
        samples = samples_of(length, tones)
        with wave.open(str(folder / f"{name}.wav"), "wb") as file:
            file.setnchannels(1)
            file.setsampwidth(2)
            file.setframerate(RATE)
            file.writeframes(struct.pack(f"<{len(samples)}h", *samples))


if __name__ == "__main__":
    main()
