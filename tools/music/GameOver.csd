<CsoundSynthesizer>
<CsInstruments>
; Game over. Two files of 12 slow bars of three in 26 seconds.
; Key: C minor
; The hook of the run upside down: from c down the fourth to g, and on by steps.
#include "Studio.orc"

instr First
    ; Bars 1 to 4, C minor: the voice falls over a bass that falls, too; a heart beats once a bar.
    ;   Cm9  Cm/Bb  Abmaj7  Fm9
    Line "Voice", 0, 0.5, 0.68, "c6! - - - ~g5 - | ~f5 - eb5 - d5, . | ~eb5 - - c5, . . | . . ab5! - g5 f5,"
    Figure "Piano", 0, 0.5, 0.5, 3, {{
        c3+g3+eb4+g4 bb2+g3+c4+eb4
        ab2+eb3+g3+c4 f2+c3+eb3+ab3 }}, "0! 1, 2 3 2, 1  0! . 2, 1 3 .  0! 2, 1 3 . 2,  0 1, 2 3! 4, ."
    Line "SoftBass", 0, 0.5, 0.8, "c2! - - - - g1, | bb1 - - - - - | ab1 - - - eb2, - | f1 - - c2, - d2,"
    Line "Pad", 0, 3, 0.62, "g3+d4+eb4 g3+c4+eb4 g3+c4+eb4 ab3+c4+eb4"
    Beat "Rim", 9, 0.25, 0.3, "........4.57"
    Beat "SoftKick", 0, 0.5, 0.9, "X.o... X..... X.o... X....."

    ; Bars 5 to 8, C minor: the tune climbs one step of comfort and slips back; the piano moves more.
    ;   Dm7b5  G7  Cm9  C7/E
    Line "Voice", 12, 0.5, 0.76, "ab5! - - f5 - d5, | ~b4 - - . d5 f5 | ~eb5 - - d5 g4, . | ~bb4 - - - . ."
    Line "Reed", 12, 0.5, 0.32, ". . . . . . | . . g4 - ~b4 - | c5 - - - - . | . . g4 - ~c5 e5"
    Figure "Piano", 12, 0.5, 0.54, 3, {{
        d3+ab3+c4+f4 g2+d3+f3+b3
        c3+eb3+g3+d4 e3+bb3+c4+g4 }}, "0! 1, 3 2 4! .  0! 2, 3 1, . 4  0! 1, 2 3! 4 3,  . 0, 1 2 3! 4"
    Line "SoftBass", 12, 0.5, 0.84, "d2! - - - ab1, - | g1 - - d2, - b1, | c2! - - g1, - - | e2 - - - c2, -"
    Line "Pad", 12, 3, 0.74, "ab3+c4+f4 g3+b3+f4 g3+d4+eb4 g3+bb3+e4"
    Beat "SoftKick", 12, 0.5, 0.95, "X.o... X...o. X.o... X...xo"
    Beat "Snare", 21, 0.25, 0.3, "........2.35"
    Beat "HighTom", 21, 0.25, 0.34, "......5..5.."
    Beat "Rim", 12, 0.5, 0.4, "....x. ....x. ....x. ....xo"
    Beat "Shaker", 12, 0.5, 0.6, "3.5.53 3.5.5. 3.5.53 3.5.57"

    ; Bars 9 to 12, C minor: voice and flute in thirds, the fullest place, and the fall on to G.
    ;   Fm9  Bb9  Abmaj7  G7sus G7
    Line "Voice", 24, 0.5, 0.84, ". c5, f5 - ~ab5! - | ~g5 - - f5 d5, . | ~eb5! - - . c5 d5 | ~c5 - . ~b4 - -"
    Line "Flute", 24, 0.5, 0.54, "ab5 - - - ~c6! - | bb5 - - ab5 - f5, | ~g5 - - - eb5 f5 | ~f5 - - d5 - -"
    Line "Bell", 24, 0.5, 0.3, ". . . . . g6 | . . . . d6 . | . . . c6 . g5 | . . d6 . g5 ."
    Figure "Piano", 24, 0.5, 0.56, 3, "f2+c3+ab3+eb4+g4 bb2+f3+ab3+c4+d4 ab2+eb3+g3+c4", {{
        0! 1, 2 3 4! 3,  0! . 2, 1 3! 4  0! 2, 1 . 4! 2, }}
    Figure "Piano", 33, 0.5, 0.56, 1.5, "g2+d3+c4 g2+d3+f3+b3", "0! 1, 2 . 2! 1,"
    Line "SoftBass", 24, 0.5, 0.92, "f1! - - c2, - f1, | bb1! - - - f1, bb1 | ab1! - - eb2, - ab1, | g1! - - d2, g1 -"
    Line "Pad", 24, 3, 0.86, "ab3+c4+eb4 ab3+c4+d4 g3+c4+eb4"
    Line "Pad", 33, 1.5, 0.84, "g3+c4+d4 g3+b3+f4"
    Beat "SoftKick", 24, 0.5, 1, "X.o.x. X.o... X.o.x. X....."
    Beat "LowTom", 33, 0.25, 0.45, "......5.5.79"
    Beat "Rim", 24, 0.5, 0.5, "..x.x. ..x.xo ..x.x. ....x."
    Beat "Shaker", 24, 0.5, 0.7, "3.5.53 3.5.57 3.5.53 3....."
    Beat "Ride", 24, 0.5, 0.3, "7.5.5. 7.5.53 7.5.5. 7....."
endin

instr Second
    ; Bars 1 to 4, E flat major: a memory. Bells and a piano in high fourths, no beat but for two taps at their end.
    ;   Ebmaj7  Bb/D  Cm7  Abmaj7
    Line "Bell", 0, 0.5, 0.5, "bb5, - eb6! - f6 g6 | bb6! - - f6, . . | g6 - eb6, - c6 . | eb6 - - - . ."
    Figure "Piano", 0, 0.5, 0.46, 3, {{
        eb3+bb3+d4+g4 d3+bb3+d4+f4
        c3+g3+bb3+eb4 ab2+eb3+g3+c4 }}, "0! . 1, 2 . 3  0! . 2, 1 3 .  0! 1, . 2 3, .  0 . 1, 2 3! 4"
    Line "SoftBass", 0, 0.5, 0.62, "eb2 - - - - - | d2 - - - - - | c2 - - - g1, - | ab1 - - - - bb1,"
    Beat "Rim", 9, 0.25, 0.4, "........5.6."
    Line "Pad", 0, 3, 0.5, "g3+bb3+d4 f3+bb3+d4 g3+bb3+eb4 g3+c4+eb4"

    ; Bars 5 to 8, back to C minor: the flute asks, higher each time, and drums come in from far.
    ;   Fm9  Bb9  G7/B  Cm9
    Line "Flute", 12, 0.5, 0.7, "c5 - ~f5 - g5 ab5 | ~c6! - - ab5 f5, . | d6! - - b5 g5, . | eb6! - - d6 - ."
    Line "Voice", 12, 0.5, 0.42, ". . . . . . | . . d5 - - - | ~f5 - - - - - | ~g5 - - - eb5 -"
    Figure "Harp", 12, 0.25, 0.42, 3, "f3+ab3+c4+eb4+g4 bb2+f3+ab3+c4+d4 b2+f3+g3+d4 c3+g3+d4+eb4", {{
        0! . 1, . 2 . 3 . 4! . 3, .  0! 1, 2 . 3 . 4! . 5 . 4, .  0! . 1, 2 3 . 4! . 5 . 6! .  0! 1, 2 3, 4 5! 6 7! 6 5, 4 . }}
    Line "SoftBass", 12, 0.5, 0.84, "f1! - - - c2, - | bb1! - - f1, - bb1 | b1! - - - g1, - | c2! - - g1, - bb1,"
    Line "Pad", 12, 3, 0.74, "g3+c4+eb4 ab3+c4+d4 g3+b3+f4 g3+d4+eb4"
    Beat "SoftKick", 12, 0.5, 0.9, "x..... x...o. X.o... X.o.x."
    Beat "HighTom", 21, 0.25, 0.4, "......5..5.."
    Beat "LowTom", 21, 0.25, 0.45, "........5.79"
    Beat "Rim", 12, 0.5, 0.45, "...... ....x. ....x. ..x.xo"
    Beat "Shaker", 15, 0.5, 0.6, "3.5.5. 3.5.53 3.5.57"
    Line "Riser", 18, 1, 0.3, "g5 - - - - -"

    ; Bars 9 to 12, C minor: all together and loud; over D flat the light goes out, and g asks for the first c.
    ;   Abmaj7  Fm9  Dbmaj7  G7b9
    Line "Voice", 24, 0.5, 0.86, "c6! - bb5 - ~g5 . | ~ab5! - - f5 . g5, | ~f5! - - ab4 c5, . | ~b4 - . d5 - g5"
    Line "Solo", 24, 0.5, 0.3, "eb5! - - - c5 - | ~c5 - - ab4 - bb4, | ~ab4! - - f4 - . | . . . . . ."
    Line "Bell", 24, 0.5, 0.34, ". . . c7 . g6 | . . eb6 . c6 . | . . f6 . c6 ab5 | . d6 . b5 . ."
    Figure "Piano", 24, 0.5, 0.6, 3, {{
        ab2+eb3+c4+g4 f2+c3+ab3+eb4
        db3+ab3+c4+f4 g2+d3+b3+f4 }}, "0! 2, 1 3! 2, 4  0! 1, 2 3 4! 3,  0! 2, 1 3 . 2,  0! 1 2, . 3 ."
    Figure "Harp", 24, 0.25, 0.4, 3, "ab3+c4+eb4+g4 f3+ab3+c4+eb4+g4 db3+ab3+c4+f4", {{
        0 1 2 3 4 3 2 1 2 3 4 5  6 5 4 3 2 1 0 1 2 3 4 .
        0 . 1 . 2 . 3 . . . . . }}
    Line "SoftBass", 24, 0.5, 1, "ab1! - - eb2, ab1 - | f1! - - c2, f1 - | db2! - - - ab1, - | g1! - - - b1, g1"
    Line "Pad", 24, 3, 0.92, "g3+c4+eb4 ab3+c4+eb4 ab3+c4+f4 ab3+b3+f4"
    Beat "SoftKick", 24, 0.5, 1, "X.o.x. X.oxx. X..... X...x."
    Beat "Snare", 24, 0.25, 0.4, "....x...x... ....x...x..2 ........x... ........2.34"
    Beat "Ride", 24, 0.5, 0.4, "9.5.5. 9.5.53 9..... 5....."
    Beat "LowTom", 30, 0.5, 0.5, "....x. ...x.x"
    Beat "Crash", 24, 0.5, 0.5, "X"
endin
</CsInstruments>
<CsScore>
; length of three files, bars, beats of a bar, level, room, push, width
i "Conductor" 0 [3 * 26] 12 3 1.02 0.85 0.1 0.55
</CsScore>
</CsoundSynthesizer>
