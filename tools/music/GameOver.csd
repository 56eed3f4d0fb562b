<CsoundSynthesizer>
<CsInstruments>
; Game over: E minor, 4 slow bars in 13 seconds (a slow beat is two beats, so a bar has eight steps).
;   Em  Cmaj7  Am9  B7
; The theme falls: down the fifth b-e instead of up the fourth, over a heartbeat that stops.
#include "Studio.orc"

instr Piece
    Line "Voice", 0, 1, 0.7, {{
        b5 - - e5 - - g5 f#5  | g5 - e5 - - - c5 -    | c5 - e5 - a4 - c5 -   | b4 - - - d#5 - . . }}

    Figure "Piano", 0, 1, 0.6, 8, "e3+b3+e4+g4 c3+g3+b3+e4 a2+e3+c4+b4", "0 1 2 3 2 1 2 1"
    Line "Piano", 24, 1, 0.6, "b2 f#3 a3 d#4 f#4 d#4 . ."

    Line "Pad", 0, 8, 0.9, "g3+b3+e4  g3+b3+e4  g3+c4+e4"
    Line "Pad", 24, 1, 0.9, "f#3+a3+d#4 - - - - - . ."

    Line "SoftBass", 0, 1, 0.9, "e2 - - - - - b1 - | c2 - - - - - g2 - | a1 - - - - - e2 - | b1 - - - - - . ."
    Line "Bell", 0, 1, 0.35, ". . . . . . . . | . . . . . b5 . . | . . . . . . . . | . . . . . f#6 . ."

    Beat "SoftKick", 0, 1, 1, "X.o..... X.o..... X.o..... X......."
    Beat "Shaker", 0, 1, 0.7, "..x...x. ..x...x. ..x...x. ..x....."
endin
</CsInstruments>
<CsScore>
; length of all passes, level, room, push
i "Conductor" 0 [3 * 13] 0.73 0.9 0.1
</CsScore>
</CsoundSynthesizer>
