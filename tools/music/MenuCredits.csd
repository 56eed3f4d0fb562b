<CsoundSynthesizer>
<CsInstruments>
; Title, first half: calm, G major, 8 slow bars in 26 seconds (a slow beat is two beats, so a bar has eight steps).
;   theme, augmented      Gmaj7  Em9  Cmaj7  D9sus | Gmaj7  Bm7  Cmaj7  D9sus
; An electric piano breaks the chords, a flute sings the theme: the fourth and the steps above it.
#include "Studio.orc"

instr Piece
    Line "Flute", 0, 1, 0.75, {{
        d5 - g5 - - a5 b5 -   | a5 - g5 - f#5 - d5 -   | e5 - - - g5 - - f#5  | e5 - d5 - - - . .
        d5 - g5 - - a5 b5 -   | d6 - - b5 a5 - f#5 -   | g5 - - - e5 - g5 -   | a5 - - - - - . . }}

    Figure "Piano", 0, 1, 0.5, 8, {{
        g3+d4+f#4+b4  e3+b3+d4+g4  c3+g3+b3+e4  d3+a3+c4+e4
        g3+d4+f#4+b4  b2+f#3+a3+d4  c3+g3+b3+e4  d3+a3+c4+e4 }}, "0 1 2 3 2 1 2 1"
    Line "Piano", 0, 2, 0.42, {{
        . . b4+d5 -  . . b4+d5 -  . . g4+b4 -  . . e4+a4 -  . . b4+d5 -  . . a4+d5 -  . . g4+b4 -  . . e4+a4 . }}

    Line "Pad", 0, 8, 0.7, "b3+d4+f#4  b3+d4+g4  c4+e4+g4  c4+e4+a4  b3+d4+f#4  a3+d4+f#4  c4+e4+g4"
    Line "Pad", 56, 1, 0.7, "c4+e4+a4 - - - - - - ."

    Line "SoftBass", 0, 1, 0.8, {{
        g2 - - - - - d2 -   | e2 - - - - - b1 -    | c2 - - - - - g2 -   | d2 - - - - - a2 -
        g2 - - - - - d2 -   | b1 - - - - - f#2 -   | c2 - - - - - g2 -   | d2 - - - a2 - d2 . }}

    Beat "SoftKick", 0, 1, 0.7, {{
        x....x.. x....x.. x....x.. x....o.. x....x.. x....x.. x....x.. x....... }}
    Beat "Shaker", 0, 0.5, 0.8, {{
        o.x.o.x. o.x.o.xo o.x.o.x. o.x.o.xo o.x.o.x. o.x.o.xo o.x.o.x. o.x.o.xo
        o.x.o.x. o.x.o.xo o.x.o.x. o.x.o.xo o.x.o.x. o.x.o.xo o.x.o.x. o.x.o... }}
endin
</CsInstruments>
<CsScore>
; length of all passes, level, room, push
i "Conductor" 0 [3 * 26] 0.71 0.9 0.15
</CsScore>
</CsoundSynthesizer>
