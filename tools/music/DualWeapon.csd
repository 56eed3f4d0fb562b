<CsoundSynthesizer>
<CsInstruments>
; Two weapons: E minor with the flattened fifth, 4 bars of four in 6.5 seconds.
;   E5 with g a g  E5 with a# a g  E5 with g a g  C5 D5 D#5
; Guitars chop sixteenths, the lead bends the theme over the a#, and the last bar marches back up to e.
#include "Studio.orc"

instr Piece
    Line "Guitar", 0, 0.25, 0.8, {{
        e2 e2 . e2  e2 . e2 e2  . e2 g2 -  a2 - g2 -
        e2 e2 . e2  e2 . e2 e2  . e2 a#2 -  a2 - g2 -
        e2 e2 . e2  e2 . e2 e2  . e2 g2 -  a2 - g2 -
        c3 - - c3  - - d3 -  - d3 - -  d#3 - - . }}
    Line "Bass", 0, 0.25, 0.85, {{
        e2 - . e2  - . e2 -  . e2 g2 -  a2 - g2 -
        e2 - . e2  - . e2 -  . e2 a#1 -  a1 - g2 -
        e2 - . e2  - . e2 -  . e2 g2 -  a2 - g2 -
        c2 - - c2  - - d2 -  - d2 - -  d#2 - - . }}

    Line "Lead", 0, 0.5, 0.7, {{
        b4 - e5 - - f#5 g5 -   | a#5 - a5 - g5 - e5 -   | b4 - e5 - - f#5 g5 -   | g5 - - a5 - - b5 . }}
    Line "Lead", 12, 0.5, 0.5, "e5 - - f#5 - - f#5 ."

    Beat "Kick", 0, 0.25, 0.9, {{
        X..xX..xX.x.X..x X..xX..xX.x.X..x X..xX..xX.x.X..x X..X..X..X..X... }}
    Beat "Snare", 0, 0.25, 0.9, {{
        ....X.......X..o ....X.......X.o. ....X.......X..o ....X.......X... }}
    Beat "Hat", 0, 0.25, 0.7, {{
        x.x.x.x.x.x.x.x. x.x.x.x.x.x.x.x. x.x.x.x.x.x.x.x. x..x..x..x..x... }}
    Beat "HighTom", 12, 0.25, 0.75, "..o...o...x....."
    Beat "LowTom", 12, 0.25, 0.85, ".............xX."
    Beat "Crash", 0, 0.5, 0.7, "X....... ........ x....... ........"
endin
</CsInstruments>
<CsScore>
; length of all passes, level, room, push
i "Conductor" 0 [3 * 6.5] 0.56 0.4 0.25
</CsScore>
</CsoundSynthesizer>
