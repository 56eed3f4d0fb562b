<CsoundSynthesizer>
<CsInstruments>
; Title, second half: calm, 8 slow bars in 26 seconds.
;   answer    Cmaj7  Bm7  Am9  D9 | Cmaj7  B7  Em9  Am7 D9sus
; The tune comes down where the first half went up; bells answer it, and the beat is a little plainer to hear.
#include "Studio.orc"

instr Piece
    Line "Flute", 0, 1, 0.75, {{
        b5 - - g5 - - e5 -    | a5 - f#5 - d5 - - -    | c5 - e5 - g5 - b5 -  | a5 - - - f#5 - - -
        b5 - - g5 - - c6 -    | a5 - f#5 - - - b5 -    | g5 - - f#5 e5 - b4 - | c5 - d5 - e5 - . . }}

    Line "Bell", 0, 1, 0.4, {{
        . . . . . e6 . b5     | . . . . . a5 d6 .      | . . . . . . . e6     | . . . . . d6 a5 .
        . . . . . g6 . e6     | . . . . . d#6 . .      | . . . . . . . g5     | . . . . . g5 . . }}

    Figure "Piano", 0, 1, 0.5, 8, {{
        c3+g3+b3+e4  b2+f#3+a3+d4  a2+e3+g3+c4+b4  d3+a3+c4+f#4
        c3+g3+b3+e4  b2+f#3+a3+d#4  e3+b3+d4+g4 }}, "0 1 2 3 2 3 2 1"
    Figure "Piano", 56, 1, 0.5, 4, "a2+g3+c4+e4 d3+g3+a3+e4", "0 1 2 3"
    Line "Piano", 0, 2, 0.42, {{
        . . g4+b4 -  . . f#4+a4 -  . . g4+c5 -  . . f#4+c5 -  . . g4+b4 -  . . f#4+d#5 -  . . g4+d5 -  . . e4+a4 . }}

    Line "Pad", 0, 8, 0.7, "c4+e4+g4  a3+d4+f#4  g3+c4+e4  c4+d4+f#4  c4+e4+g4  a3+d#4+f#4  b3+d4+g4"
    Line "Pad", 56, 1, 0.7, "a3+c4+g4 - - - c4+e4+a4 - - ."

    Line "SoftBass", 0, 1, 0.8, {{
        c2 - - - - - g2 -   | b1 - - - - - f#2 -   | a1 - - - - - e2 -   | d2 - - - - - a2 -
        c2 - - - - - g2 -   | b1 - - - - - d#2 -   | e2 - - - - - b1 -   | a1 - - - d2 - - . }}

    Beat "SoftKick", 0, 1, 0.75, {{
        x....x.. x....x.. x....x.. x....x.o x....x.. x....x.. x....x.. x....... }}
    Beat "Rim", 0, 1, 0.45, {{
        ..x...x. ..x...x. ..x...x. ..x...x. ..x...x. ..x...x. ..x...x. ..x...o. }}
    Beat "Shaker", 0, 0.5, 0.85, {{
        o.x.o.x. o.x.o.xo o.x.o.x. o.x.o.xo o.x.o.x. o.x.o.xo o.x.o.x. o.x.o.xo
        o.x.o.x. o.x.o.xo o.x.o.x. o.x.o.xo o.x.o.x. o.x.o.xo o.x.o.x. o.x.o... }}
endin
</CsInstruments>
<CsScore>
; length of all passes, level, room, push
i "Conductor" 0 [3 * 26] 0.70 0.9 0.15
</CsScore>
</CsoundSynthesizer>
