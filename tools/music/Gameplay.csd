<CsoundSynthesizer>
<CsInstruments>
; Driving, first half: E minor, 8 bars of four in 13 seconds.
;   theme     Em  Em  C  D | Em  G  Am  B7
; The theme in its plain form: up the fourth b-e, on by steps to g, and back.
#include "Studio.orc"

instr Piece
    Line "Lead", 0, 0.5, 0.8, {{
        b4 - e5 - - f#5 g5 -  | f#5 - e5 - d5 - b4 -  | c5 - e5 - - g5 a5 -   | f#5 - - - a5 - f#5 -
        b5 - - a5 g5 - f#5 -  | g5 - - d5 - - b4 d5   | c5 - d5 e5 - - a5 -   | f#5 - - - d#5 - . . }}

    Line "Pad", 0, 4, 0.9, "g3+b3+e4  g3+b3+e4  g3+c4+e4  a3+d4+f#4  g3+b3+e4  g3+b3+d4  a3+c4+e4"
    Line "Pad", 28, 1, 0.9, "f#3+a3+b3+d#4 - - ."

    Figure "Pluck", 0, 0.25, 0.62, 4, {{
        e4+g4+b4  e4+g4+b4  c4+e4+g4  d4+f#4+a4  e4+g4+b4  d4+g4+b4  c4+e4+a4  d#4+f#4+a4 }}, {{
        0 1 2 3  2 1 2 1  0 2 3 2  4 3 2 1 }}

    Figure "Bass", 0, 0.5, 0.85, 4, "e2 e2 c2 d2 e2 g2 a1", "0 0 1 0 0 0 1 0"
    Line "Bass", 28, 0.5, 0.85, "b1 b1 b2 b1 b1 b1 b2 ."

    Beat "Kick", 0, 0.5, 0.9, {{
        X..X.X.. X..X.X.. X..X.X.. X..X.X.x  X..X.X.. X..X.X.. X..X.X.. X..X.X.. }}
    Beat "Snare", 0, 0.25, 0.8, {{
        ....X.......X... ....X.......X..o ....X.......X... ....X.......X.o.
        ....X.......X... ....X.......X..o ....X.......X... ....X....xo.Xxo. }}
    Beat "Hat", 0, 0.25, 0.75, {{
        x.oxx.oxx.oxx.ox x.oxx.oxx.oxx.o. x.oxx.oxx.oxx.ox x.oxx.oxx.oxx.o.
        x.oxx.oxx.oxx.ox x.oxx.oxx.oxx.o. x.oxx.oxx.oxx.ox x.oxx.oxx.o..... }}
    Beat "OpenHat", 0, 0.5, 0.7, "........ .......x ........ .......x ........ .......x ........ ........"
    Beat "Crash", 0, 0.5, 0.75, "X"
endin
</CsInstruments>
<CsScore>
; length of all passes, level, room, push
i "Conductor" 0 [3 * 13] 0.63 0.5 0.5
</CsScore>
</CsoundSynthesizer>
