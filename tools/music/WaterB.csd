<CsoundSynthesizer>
<CsInstruments>
; On the water, second half: 8 bars in 13 seconds, the same flow, in G major.
;   open sea  Gmaj7  D/F#  Em9  Cmaj7 | Am7  Bm7  Cmaj7  D9sus
; The harp turns its wave round, and bells glitter in the gaps of the tune.
#include "Studio.orc"

instr Piece
    Line "Voice", 0, 1, 0.8, {{
        d6 - - b5     | a5 - - -      | b5 - - g5     | e5 - f#5 -
        c6 - b5 a5    | b5 - - f#5    | g5 - a5 -     | a5 - - . }}

    Line "Bell", 0, 1/3, 0.38, {{
        . . .  . . .  . . .  . . .    | . . .  . . d6  . f#6 .  a6 . .
        . . .  . . .  . . .  . . .    | . . .  . . b5  . e6 .  g6 . .
        . . .  . . .  . . .  . . .    | . . .  . . .  . . .  d6 . .
        . . .  . . .  . . .  . . .    | . . .  . . d6  . e6 .  . . . }}

    Figure "Harp", 0, 1/3, 0.55, 4, {{
        d4+f#4+g4+b4  d4+f#4+a4+d5  d4+e4+g4+b4  c4+e4+g4+b4  c4+e4+g4+a4  d4+f#4+a4+b4  c4+e4+g4+b4  d4+e4+g4+a4 }}, {{
        5 4 3  2 1 0  1 2 3  4 3 2 }}

    Line "Pad", 0, 4, 0.9, "f#3+b3+d4  f#3+a3+d4  g3+b3+d4  g3+b3+e4  g3+c4+e4  f#3+b3+d4  g3+c4+e4"
    Line "Pad", 28, 1, 0.9, "g3+a3+d4 - - ."

    Line "SoftBass", 0, 1, 0.9, {{
        g2 - - d2     | f#2 - - d2    | e2 - - b1     | c2 - - g2
        a1 - - e2     | b1 - - f#2    | c2 - - g2     | d2 - a1 . }}

    Beat "SoftKick", 0, 1/3, 0.85, {{
        X.. ... ..x ...  X.. ..x ... ...  X.. ... ..x ...  X.. ..x ... ..o
        X.. ... ..x ...  X.. ..x ... ...  X.. ... ..x ...  X.. ..x ... ... }}
    Beat "Rim", 0, 1/3, 0.6, {{
        ... ... x.. ...  ... ... x.. ..o  ... ... x.. ...  ... ... x.. ...
        ... ... x.. ...  ... ... x.. ..o  ... ... x.. ...  ... ... x.. ... }}
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
