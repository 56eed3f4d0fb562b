<CsoundSynthesizer>
<CsInstruments>
; Title: calm. Two files of 20 bars of four in 52 seconds.
; Key: D major
; The tune is the hook of the run in major and at rest: up the fourth a-d, on by steps to f#.
#include "Studio.orc"

instr First
    ; Bars 1 to 8, D major: the verse, for flute over electric piano; the beat comes in little by little.
    ;   Dadd9  Bm7  Gmaj7  A9sus | Dadd9  F#m7 B7/D#  Em9  A7sus A7
    Line "Flute", 0, 0.5, 0.66, {{
        d5! - - e5 ~f#5 - - . | a5 - f#5 - e5, d5 - . | b4 - d5 - - ~f#5 - e5 | ~e5 - - - . . a4, b4
        d5! - - e5 ~f#5 - a5 . | ~c#6! - b5 - ~a5 - f#5, . | g5 - - f#5 e5 - b4, . | ~d5 - - - c#5, - . . }}
    Figure "Piano", 0, 0.5, 0.5, 4, "d3+a3+e4+f#4 b2+f#3+a3+d4 g2+d3+f#3+b3 a2+e3+g3+d4", {{
        0! 1, 2 3 . 2 4, .  0! . 2, 3 5! . 3, 2  0 2! 1, 3 . 5! 4, .  0! 1, . 3 2, . 1 . }}
    Figure "Piano", 16, 0.5, 0.54, 2, {{
        d3+a3+d4+f#4 d3+a3+e4+f#4
        f#2+c#3+a3+e4 d#3+a3+b3+f#4 }}, "0! 2 3, 1  4! 3, 2 .  0! 1, 3 2  . 1, 2 3!"
    Figure "Piano", 24, 0.5, 0.54, 4, "e3+g3+b3+f#4 a2+e3+g3+d4", "0! 1, 2 3 4! 3, . 2  0! . 1, 3 . 2 1, 2"
    Line "SoftBass", 0, 0.5, 0.76, {{
        d2 - - - - - a2, - | b1 - - - - f#2, - - | g1 - - - d2, - - - | a1 - - - - e2, - c#2,
        d2 - - - - - e2, - | f#2 - - - d#2 - - - | e2 - - - b1, - e2, - | a1 - - - - - b1, c#2 }}
    Line "Pad", 0, 4, 0.5, "a3+e4+f#4 a3+d4+f#4 b3+d4+f#4 a3+b3+e4"
    Line "Pad", 16, 2, 0.58, "a3+e4+f#4 - a3+c#4+e4 a3+b3+f#4 g3+b3+f#4 - g3+b3+d4 g3+c#4+e4"
    Beat "Shaker", 8, 0.5, 0.7, "3.5.3.5. 3.5.3.57 3.5.3.5. 3.5.3.57 3.5.3.5. 3.5.3.57"
    Beat "Rim", 12, 0.25, 0.38, "..........4..5.7"
    Beat "Snare", 28, 0.25, 0.26, "..........2.2345"
    Beat "HighTom", 28, 0.25, 0.3, "........5..5...."
    Beat "LowTom", 28, 0.25, 0.36, "............5.7."
    Beat "SoftKick", 16, 0.5, 0.75, "x....x.. x....o.. x...x... x....xo."

    ; Bars 9 to 16, D major: the answer from above, for the reed; the last phrase borrows E7 and G minor.
    ;   Gmaj7  F#m7  Em9  A9 | Bm9  E9  Em7 Gm6  D/A A7
    Line "Reed", 32, 0.5, 0.52, {{
        b5! - a5 - f#5, - d5 . | ~a5 - - f#5 - - c#5, . | b4 - d5 - ~g5 - f#5 - | e5 - - - c#5, - . .
        d5 - f#5 - ~b5! - a5 . | ~g#5 - - f#5 e5 - . e5, | g5 - - b5 ~bb5! - g5 - | ~a5 - - - - - . . }}
    Line "Bell", 32, 0.5, 0.3, {{
        . . . . . . . f#6 | . . . . . . . e6, | . . . . . . . . | . . . . . a5, c#6 e6
        . . . . . . . . | . . . . . . b5 . | . . . . . . . . | . . d6 . f#6, . a6 . }}
    Figure "Piano", 32, 0.5, 0.56, 2, {{
        g2+d3+f#3+b3 d3+f#3+a3+b3 f#2+c#3+e3+a3 c#3+e3+a3 e2+b2+f#3+g3 b2+d3+g3 a2+e3+b3 c#3+g3+b3 }}, {{
        0! 2, 3 4  3! 2, . 1  0! . 2, 3  4! . 2, 1  0! 1, 2 3  . 3, 4! 2  0! . 2, 3  1 . 2, 4 }}
    Figure "Piano", 48, 0.5, 0.58, 2, {{
        b2+f#3+a3+d4 f#3+a3+d4 e2+b2+g#3+d4 b2+f#3+g#3 e2+b2+d3+g3 g2+e3+bb3+d4 a2+d3+f#3+a3 a2+e3+g3+c#4 }}, {{
        0! 1, 2 3  4! . 2, 3  0! 2, 1 3  2 . 1, 0  0! 1 2, 3  3! 2, 1 0,  0! 2 1, 3  4! 3 2, . }}
    Line "SoftBass", 32, 0.5, 0.82, {{
        g1 - - - d2, - g2, - | f#1 - - - - c#2, - - | e2 - - - b1, - - d2 | a1 - - a1, - - c#2, -
        b1 - - - f#2, - - - | e2 - - - b1, - g#1, - | e2 - - b1, g1 - - g#1 | a1 - - - a1 - - b1, }}
    Line "Pad", 32, 4, 0.62, "b3+d4+f#4 a3+c#4+e4 g3+b3+f#4 g3+c#4+e4 a3+d4+f#4 g#3+b3+d4"
    Line "Pad", 56, 2, 0.66, "g3+b3+d4 bb3+d4+e4 a3+d4+f#4 g3+c#4+e4"
    Beat "SoftKick", 32, 0.5, 0.85, "X....x.. X..o.x.. X....x.. X....xo. X....x.. X..o.x.. X...x... X......."
    Beat "Rim", 32, 0.5, 0.5, "..x...x. ..x...xo ..x...x. ..x..ox. ..x...x. ..x...xo ..x...x. ..x.o.xo"
    Beat "Snare", 44, 0.25, 0.24, "............2.35"
    Beat "HighTom", 60, 0.25, 0.4, "........5..5...."
    Beat "LowTom", 60, 0.25, 0.45, "............7.59"
    Beat "Shaker", 32, 0.25, 0.7, {{
        3.1.5.1.3.1.5.1. 3.1.5.1.3.1.5.35 3.1.5.1.3.1.5.1. 3.1.5.1.3.3.5.57
        3.1.5.1.3.1.5.1. 3.1.5.1.3.1.5.35 3.1.5.1.3.1.5.1. 3.1.5.1.3....... }}

    ; Bars 17 to 20, from D major towards F major: the tune rests, bells and voice hang over four borrowed chords.
    ;   Bbmaj7  Am7  Gm9  C9sus
    Line "Voice", 64, 0.5, 0.42, ". . d5 - - f5 - - | ~e5 - - - - - . . | . . d5 - - bb4 - - | ~c5 - - - - - - -"
    Line "Bell", 64, 0.5, 0.34, {{
        f6 . . a5, . . d6 . | c6 . . . g5, . . e6
        . d6 . . a5 . . f5, | g5 . bb5, . . d6 . c6, }}
    Figure "Piano", 64, 0.5, 0.46, 4, "bb2+f3+a3+d4 a2+e3+g3+c4 g2+f3+a3+bb3 c3+f3+bb3+d4", {{
        0 . 1 . 2 . 3 .  4 . 3 . . 2 1 .  0 1 . 2 . 3 . 4  0 . 2 . 3 . 5 . }}
    Line "SoftBass", 64, 0.5, 0.72, "bb1 - - - - - - - | a1 - - - - - - - | g1 - - - - - d2, - | c2 - - - - g1, - c2,"
    Line "Pad", 64, 4, 0.56, "a3+d4+f4 g3+c4+e4 a3+bb3+f4 bb3+d4+f4"
    Beat "HighTom", 76, 0.25, 0.24, "..........5..6.."
    Beat "LowTom", 76, 0.25, 0.3, "..............68"
    Beat "Shaker", 64, 0.5, 0.5, "3...3... 3...3..1 3...3... 3.3.5.57"
endin

instr Second
    ; Bars 1 to 8, F major: the middle part, for the voice, in longer waves.
    ;   Fmaj9  Dm9  Bbmaj7  C9 | Am7  D7b9  Gm9  C7
    Line "Voice", 0, 0.5, 0.62, {{
        c5 - - ~f5 g5 - a5 . | ~c6! - - a5 f5, - - . | d6! - - ~c6 a5 - f5, . | ~g5 - - - . . e5, f5
        g5 - a5 - ~c6 - e6 . | ~eb6! - - d6 c6 - a5, . | bb5 - - ~a5 g5 - f5 . | ~e5 - g5 - bb5 - . . }}
    Figure "Harp", 0, 0.25, 0.38, 2, {{
        f3+c4+e4+g4 a3+c4+g4 d3+a3+c4+e4 f3+a3+c4
        bb2+f3+a3+d4 d3+f3+a3 c3+g3+bb3+d4 e3+g3+bb3 }}, {{
        0! . 1, . 2 . 3 .  4! . 3, . 2 . 1, .  0! 1, 2 3 4! . . .  3, . 2 . 1, . . .
        0 . 1 2 . 3 . 4  . 5 . 4 . 3 . .  0 . 1 . 2 . 3 .  4 . 5 . 6 . . . }}
    Figure "Harp", 16, 0.25, 0.42, 2, {{
        a2+e3+g3+c4 c3+e3+g3 d3+a3+c4+f#4 c3+eb3+f#3
        g2+d3+f3+bb3 bb2+d3+a3 c3+g3+bb3+e4 e3+bb3+c4 }}, {{
        0! 1, 2 3 . . 4! .  5! . 4, . 3 . 2, .  . 0, 1 2 3! . . .  5! . . 4, . . 3 .
        0! . 2, . 1 . 3 .  2! . 4, . 3 . 5! .  0! 1, 2, 3 4, 5 6 7!  6! . 5, . 4 . 3, . }}
    Line "SoftBass", 0, 0.5, 0.8, {{
        f1 - - - c2, - - - | d2 - - - a1, - - - | bb1 - - - - f2, - - | c2 - - - g1, - - g#1,
        a1 - - - - e2, - - | d2 - - - f#1, - a1, - | g1 - - - d2, - - - | c2 - - - e2, - c2, e1 }}
    Line "Pad", 0, 4, 0.72, "a3+c4+g4 a3+c4+f4 a3+d4+f4 bb3+d4+e4 g3+c4+e4 a3+c4+eb4 a3+bb3+f4 bb3+e4+g4"
    Beat "Snare", 12, 0.25, 0.4, "..........3..4.5"
    Beat "Snare", 28, 0.25, 0.26, "........2..2.345"
    Beat "HighTom", 28, 0.25, 0.36, "........6..6...."
    Beat "LowTom", 28, 0.25, 0.4, "............7.8."
    Beat "SoftKick", 16, 0.5, 0.8, "x....... x....x.. x....... x....x.."
    Beat "Shaker", 0, 0.25, 0.62, {{
        ....5.......5... ....5.......5.3. ....5.......5... ....5.......5.35
        3.1.5.1.3.1.5.1. 3.1.5.1.3.1.5.13 3.1.5.1.3.1.5.1. 3.1.5.1.3.5.7.57 }}

    ; Bars 9 to 12, from F major back to D major: E minor seventh is common ground, then a long dominant grows.
    ;   F  Em7  Em9/A  A13
    Line "Reed", 32, 0.5, 0.54, {{
        a5 - - ~g5 f5 - e5, . | ~e5 - - - g5, - b5 .
        ~d6! - - b5 - - g5, - | ~a5 - - - . . . a4, }}
    Figure "Piano", 32, 0.5, 0.54, 2, {{
        f2+c3+f3+a3 c3+f3+a3+c4 e2+b2+g3+d4 b2+d3+g3
        a2+e3+g3+b3 d3+g3+b3+e4 a2+e3+g3+c#4 g3+c#4+f#4 }}, {{
        0! 1, 2 3  2! . 1, .  0! 1, 2 3  4! . 3, .  0! 1, 2, 3  1! 2, 3, 4  0! 2, 1 3!  0! 1 2! 3! }}
    Line "SoftBass", 32, 0.5, 0.84, {{
        f1 - - - - - f1, - | e1 - - - b1, - e2, -
        a1 - - a1, - - a1, - | a1 - a1, - a1 - b1 c#2 }}
    Line "Pad", 32, 4, 0.7, "a3+c4+f4 g3+b3+d4 g3+b3+e4 g3+c#4+f#4"
    Line "Riser", 40, 1, 0.35, "a5 - - - - - - -"
    Beat "SoftKick", 32, 0.5, 0.85, "x....... x....x.. x...x... x.x.x.x."
    Beat "Snare", 44, 0.25, 0.34, "....2...2.3.3456"
    Beat "Shaker", 32, 0.25, 0.7, "3.1.5.1.3.1.5.1. 3.1.5.1.3.1.5.35 3.3.5.3.3.3.5.3. 3.3.5.5........."

    ; Bars 13 to 20, D major: the verse returns, with a counter-line of the reed, a kit and the pads wide open,
    ; from bar 17 on with a voice.
    ;   Dadd9  Bm7  G  A9 | D/F#  G G#dim7  D/A Bm7  Em9 A13
    Line "Flute", 48, 0.5, 0.78, {{
        d5! - - e5 ~f#5 - a5 . | ~b5! - a5 f#5 e5 d5, - . | b4 - d5 - ~g5 - f#5 - | ~e5 - - - . . a4, b4
        d5! - - e5 ~f#5 - a5 . | ~d6! - - b5 g#5 - b5 . | a5 - - ~f#5 d5 - f#5, - | ~e5 - - . . . . a4, }}
    Line "Reed", 48, 0.5, 0.42, {{
        f#4 - - - a4 - - - | ~d5 - - - c#5 - b4 - | g4 - - - ~b4 - d5 - | ~c#5 - - - b4 ~c#5 - -
        a4 - - - ~b4 - a4 - | b4 - - - ~d5 - - - | ~a4 - - d5 - - b4, - | b4 - - - ~c#5 - - - }}
    Line "Bell", 48, 0.5, 0.34, {{
        . . . . . . . d6 | . . . . . . . f#6 | . . . . . . . a6, | . . . . . e6 b5 .
        . . . . . . . . | . . . . . . . f6 | . . . . . . . a6 | . . . b5 d6 f#6 . . }}
    Line "Voice", 64, 0.5, 0.3, ". . . . a4 - - - | . . . . b4 - - - | a4 - - - - - . . | . . . . . . . ."
    Figure "Piano", 48, 0.25, 0.46, 2, {{
        d3+a3+e4+f#4 a3+d4+e4 b2+f#3+a3+d4 f#3+a3+d4
        g2+d3+g3+b3 d3+g3+b3 a2+e3+b3+c#4 e3+g3+b3 }}, {{
        0! . 2, . . 3 . 1,  2! . . 3, . . 1 .  0! . 1, 2 3! . . .  2, . 3 . 4! . . .
        0 . . 1 . . 2 .  3 . 4 . 3 . 2 .  0 . 1 . 2 . 3 .  . 3 . 2 . 1 . . }}
    Figure "Piano", 64, 0.25, 0.5, 2, {{
        f#2+d3+a3+e4 a3+d4+f#4 g2+d3+g3+b3 g#2+d3+f3+b3
        a2+d3+f#3+a3 b2+f#3+a3+d4 e2+b2+g3+f#4 a2+g3+c#4+f#4 }}, {{
        0! 1, 2 3 . 3! . 2,  1 . 2, . 4! . 3, .  0! . 1, 2 . 3! . 4,  0! 1, . 2 . 3 4! .
        0 . 2 . 1 . 3 .  0 2 1 3 2 . 4 .  0 . 1 . 2 . 3 .  0 . 1 . 2 . 3 . }}
    Line "SoftBass", 48, 0.5, 0.92, {{
        d2! - - a1, d2 - a2 - | b1! - - f#1, b1 - - f#2 | g1! - - d2, g2 - d2, - | a1! - - e2, a1 - b1 c#2
        f#1! - - d2, f#2 - f#1, - | g1! - d2, - g#1! - b1, - | a1! - - d2, b1 - - d2, | e2! - b1 - a1! - e2 c#2 }}
    Line "Pad", 48, 4, 0.86, "a3+e4+f#4 a3+d4+f#4 b3+d4+g4 b3+c#4+e4 a3+d4+f#4"
    Line "Pad", 68, 2, 0.92, "b3+d4+g4 b3+d4+f4 a3+d4+f#4 a3+d4+f#4 b3+d4+f#4 g3+c#4+f#4"
    Beat "SoftKick", 48, 0.5, 1, "X....xX. X..o.x.. X....xX. X....xo. X....xX. X..ox... X...X... X......."
    Beat "Snare", 48, 0.25, 0.36, {{
        ....x..1....x... ....x..1.1..x..1 ....x..1....x... ....x..1.1..x.23
        ....x..1....x... ....x..1.1..x..1 ....x..1....x..1 ....x..2.2.3.... }}
    Beat "HighTom", 60, 0.25, 0.4, "........5..5...."
    Beat "LowTom", 60, 0.25, 0.42, "............6..8"
    Beat "LowTom", 76, 0.25, 0.5, "..........6.7.9."
    Beat "Ride", 48, 0.5, 0.4, "7.5.7.5. 7.5.7.53 7.5.7.5. 7.5.7... 7.5.7.5. 7.5.7.53 7.5.7.5. 7......."
    Beat "Shaker", 48, 0.25, 0.75, {{
        3.1.5.1.3.1.5.1. 3.1.5.1.3.1.5.35 3.1.5.1.3.1.5.1. 3.1.5.1.3.3.5...
        3.1.5.1.3.1.5.1. 3.1.5.1.3.1.5.35 3.1.5.1.3.1.5.1. 3.1.5.1......... }}
    Beat "Crash", 48, 0.5, 0.4, "x"
endin
</CsInstruments>
<CsScore>
; length of three files, bars, beats of a bar, level, room, push, width
i "Conductor" 0 [3 * 52] 20 4 1.06 0.8 0.15 0.5
</CsScore>
</CsoundSynthesizer>
