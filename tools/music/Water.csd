<CsoundSynthesizer>
<CsInstruments>
; On the water, first half: 8 bars in 13 seconds, triplets over a beat of half the pace, C lydian in E minor's notes.
;   waves     Cmaj7  Cmaj7  Bm7  Em7 | Am9  Am9  D9sus  D
; A harp rolls up and down like water, and the voice takes the theme in long notes.
#include "Studio.orc"

instr Piece
    Line "Voice", 0, 1, 0.8, {{
        b4 e5 - f#5   | g5 - - -      | a5 - - f#5    | g5 - e5 -
        c6 - - b5     | a5 - - e5     | a5 - g5 -     | f#5 - - . }}

    Figure "Harp", 0, 1/3, 0.55, 4, {{
        c4+e4+g4+b4  e4+g4+b4+c5  d4+f#4+a4+b4  e4+g4+b4+d5  c4+e4+g4+a4  e4+a4+b4+c5  d4+e4+g4+a4  d4+f#4+a4+c5 }}, {{
        0 1 2  3 4 5  4 3 2  3 2 1 }}

    Line "Pad", 0, 4, 0.9, "g3+b3+e4  g3+c4+e4  f#3+b3+d4  g3+b3+d4  g3+c4+e4  a3+c4+e4  g3+a3+d4"
    Line "Pad", 28, 1, 0.9, "f#3+a3+d4 - - ."

    Line "SoftBass", 0, 1, 0.9, {{
        c2 - - g2     | c2 - g2 -     | b1 - - f#2    | e2 - - b1
        a1 - - e2     | a1 - e2 -     | d2 - - a2     | d2 - a1 . }}

    Beat "SoftKick", 0, 1/3, 0.85, {{
        X.. ... ..x ...  X.. ..x ... ...  X.. ... ..x ...  X.. ..x ... ..o
        X.. ... ..x ...  X.. ..x ... ...  X.. ... ..x ...  X.. ..x ... ... }}
    Beat "Rim", 0, 1, 0.6, "..x. ..x. ..x. ..x. ..x. ..x. ..x. ..x."
    Beat "Shaker", 0, 1/3, 0.85, {{
        xoo xoo xoo xoo  xoo xoo xoo xoo  xoo xoo xoo xoo  xoo xoo xoo xox
        xoo xoo xoo xoo  xoo xoo xoo xoo  xoo xoo xoo xoo  xoo xoo xoo x.. }}
endin
</CsInstruments>
<CsScore>
; length of all passes, level, room, push
i "Conductor" 0 [3 * 13] 0.73 0.9 0.25
</CsScore>
</CsoundSynthesizer>
