<CsoundSynthesizer>
<CsInstruments>
; Driving, second half: 8 bars of four in 13 seconds, on the bright side of the key.
;   bridge    C  D  Em  G | C  D  Am  B7
; The lead opens out into long notes and climbs, brass answers it, a second lead joins in thirds and sixths below, and
; B7 leads home to the theme.
#include "Studio.orc"

instr Piece
    Line "Lead", 0, 0.5, 0.8, {{
        g5 - - - e5 - g5 -    | a5 - - - f#5 - a5 -   | b5 - - - - - g5 -     | d6 - b5 - g5 - a5 b5
        c6 - - - b5 - a5 -    | a5 - - f#5 - - d5 -   | e5 - a5 - c6 - b5 a5  | b5 - - - - - . . }}

    Line "Lead", 16, 0.5, 0.45, {{
        e5 - - - g5 - e5 -    | f#5 - - d5 - - a4 -   | c5 - e5 - a5 - g5 f#5 | f#5 - - - - - . . }}

    Line "Brass", 0, 0.5, 0.5, {{
        . . . c4+e4+g4 . . c4+e4+g4 .   | . . . d4+f#4+a4 . . d4+f#4+a4 .
        . . . e4+g4+b4 . . e4+g4+b4 .   | . . . d4+g4+b4 . . d4+g4+b4 .
        . . . c4+e4+g4 . . c4+e4+g4 .   | . . . d4+f#4+a4 . . d4+f#4+a4 .
        . . . c4+e4+a4 . . c4+e4+a4 .   | d#4+f#4+a4 - d#4+f#4+a4 - d#4+f#4+b4 - . . }}

    Line "Pad", 0, 4, 0.9, "g3+c4+e4  a3+d4+f#4  g3+b3+e4  g3+b3+d4  g3+c4+e4  a3+d4+f#4  a3+c4+e4"
    Line "Pad", 28, 1, 0.9, "f#3+a3+b3+d#4 - - ."

    Figure "Pluck", 0, 0.25, 0.58, 4, {{
        c4+e4+g4  d4+f#4+a4  e4+g4+b4  d4+g4+b4  c4+e4+g4  d4+f#4+a4  c4+e4+a4  d#4+f#4+a4 }}, {{
        0 2 1 3  2 4 3 2  1 3 2 1  3 2 1 2 }}

    Figure "Bass", 0, 0.5, 0.85, 4, "c2 d2 e2 g2 c2 d2 a1", "0 0 0 1 0 0 1 0"
    Line "Bass", 28, 0.5, 0.85, "b1 b1 b2 b1 b2 b1 f#2 ."

    Beat "Kick", 0, 0.5, 0.9, {{
        X.X.X.X. X.X.X.X. X.X.X.X. X.X.X.Xx  X.X.X.X. X.X.X.X. X.X.X.X. X..X..X. }}
    Beat "Snare", 0, 0.25, 0.8, {{
        ....X.......X... ....X.......X... ....X.......X... ....X.......X.oo
        ....X.......X... ....X.......X... ....X.......X... X.o.X.o.X.xoX... }}
    Beat "Hat", 0, 0.25, 0.7, {{
        x.o.x.o.x.o.x.o. x.o.x.o.x.o.x.o. x.o.x.o.x.o.x.o. x.o.x.o.x.o.x.o.
        xoo.xoo.xoo.xoo. xoo.xoo.xoo.xoo. xoo.xoo.xoo.xoo. x...x...x....... }}
    Beat "OpenHat", 0, 0.5, 0.75, ".x.x.x.x .x.x.x.x .x.x.x.x .x.x.x.x .x.x.x.x .x.x.x.x .x.x.x.x ........"
    Beat "HighTom", 28, 0.25, 0.7, ".... .... .x.. ...."
    Beat "LowTom", 28, 0.25, 0.8, ".... .... .... .X.."
    Beat "Crash", 0, 0.5, 0.75, "X....... ........ ........ ........ x"
endin
</CsInstruments>
<CsScore>
; length of all passes, level, room, push
i "Conductor" 0 [3 * 13] 0.60 0.5 0.5
</CsScore>
</CsoundSynthesizer>
