<CsoundSynthesizer>
<CsInstruments>
; Two weapons. Two files of four bars of nine eighths (four and five) in 6.5 seconds.
; Key: D phrygian
; Guitars chop sixteenths round the flat second; the hook of the run is bent over it: a-d, then e flat and f.
#include "Studio.orc"

instr First
    ; Bars 1 to 3, D phrygian: the riff three times, each time with another end; the solo guitar leans on e flat.
    ;   D5 Eb5  D5 F5 Eb5  D5 Ab5 G5
    Line "Solo", 0, 0.5, 0.5, ". a4, d5! - ~eb5! - - d5 f5 | ~eb5 - d5 . a4, c5 - ~d5 . | . a4, d5 f5 ~ab5! - . g5 f5"
    Line "Guitar", 0, 0.25, 0.62, {{
        d2! d2 . d2 d2 . d2, d2  eb2! - - d2 d2 . f2 - eb2 -
        d2! d2 . d2 . d2 d2, d2  f2! - - eb2 - - d2 . c2! d2,
        d2! d2 . d2 d2 . f2, f2  ab2! - - g2 - - f2 eb2 . d2, }}
    Line "Bass", 0, 0.25, 0.29, {{
        d2! - . d2 - . d1 -  eb2! - - d2 - . f2 - eb2 -
        d2! - d3 - . d2 - -  f2! - - eb2 - - d2 - c2 -
        d2! - . d2 - . f2 -  ab1! - - g1 - - f1 - a1 - }}
    Line "Brass", 0, 0.5, 0.34, {{
        . . . . g4+bb4+eb5! . . . . | . . . . a4+c5+f5! . . g4+bb4+eb5 .
        . . . . ab4+c5+eb5! . . . . }}
    Figure "Pluck", 0, 0.25, 0.36, 4.5, "d4+a4+d5 f4+a4+c5 eb4+ab4+c5", {{
        0! . . 1, . . 2 . 0! . . 1, . . 2 . 3 .  . 2! . 1, . 0 . 1, . 2 . 3! . 2, . 1 . .  0! 1, . 2 . 3! . 2, . 1 2, . 3 . 4! . 5 . }}
    Beat "Kick", 0, 0.25, 0.48, "X..X..X.X..X..X... X..X...XX..X....X. X..X..X.X..X..X.X."
    Beat "Snare", 0, 0.25, 0.9, "....X..2....X..2.. ....X.2.....X.22.. ....X..2....X..2.3"
    Beat "Hat", 0, 0.25, 0.7, "9.5.9.5.9.5.9.5.7. 9.5.9.5.9.559.5.7. 9.559.5.9.5.9.557."
    Beat "Crash", 0, 0.5, 0.55, "X........ ......... ....x...."

    ; Bar 4: the fill; guitars and drums in one rhythm, up to a, which wants d.
    ;   Bb5 C5  Eb5 A7
    Line "Solo", 13.5, 0.5, 0.54, "d5! - ~e5 . ~g5! - bb5 ~a5 -"
    Line "Guitar", 13.5, 0.25, 0.66, "bb1! - - c2 - - d2 -  eb2! - e2 - f2 - a1! a1 c#2 -"
    Line "Bass", 13.5, 0.25, 0.37, "bb1! - - c2 - - d2 -  eb2! - e2 - f2 - a1! - c#2 -"
    Figure "Pluck", 13.5, 0.25, 0.4, 1.5, "d4+f4+bb4 eb4+g4+bb4 c#4+e4+g4+a4", "0 . . 1 . .  2 . 3 . 4 .  3 . 4 5 6 7"
    Beat "Kick", 13.5, 0.25, 0.51, "X..X..X.X.X.X.X..."
    Beat "Snare", 13.5, 0.25, 0.78, "....X..5....X.6776"
    Beat "HighTom", 13.5, 0.25, 0.8, "..........9.9....."
    Beat "LowTom", 13.5, 0.25, 0.8, ".....9...9...9.8.."
    Beat "OpenHat", 13.5, 0.5, 0.7, "9..9..9.."
    Line "Pad", 0, 4.5, 0.6, "a3+d4+f4 a3+c4+f4 ab3+c4+eb4"
    Line "Pad", 13.5, 1.5, 0.6, "f3+bb3+d4 g3+bb3+eb4 g3+a3+c#4"
endin

instr Second
    ; Bars 1 and 2, G minor, at first over d: the guitars let their chords ring, half the drums.
    ;   Gm/D  Ebmaj7
    Line "Lead", 0, 0.5, 0.5, "d5! - ~eb5 d5 bb4, - . . g4, | ~bb4! - c5 bb4 g5! - f5 . d5,"
    Line "Guitar", 0, 0.5, 0.5, "g2! - - - - g2, - f2 - | eb2! - - - - eb2, - d2 -"
    Line "Bass", 0, 0.5, 0.43, "d2! - - d2, g1 - . f1 - | eb2! - - bb1, eb2 - . e2 -"
    Figure "Pluck", 0, 0.25, 0.44, 4.5, "d4+g4+bb4 eb4+g4+bb4+d5", {{
        0! . 1, . 2 . 3, . 4! . 3, . 2 . 1, . 2 .  0! 1, . 2 3 . 4, . 5! . 4 3, . 2 . 1 . . }}
    Beat "Kick", 0, 0.25, 0.58, "X.......X.....X... X.......X..x..X..."
    Beat "Rim", 0, 0.25, 0.7, "....X.......X....."
    Beat "Snare", 4.5, 0.25, 0.75, "....X.......X..345"
    Beat "Ride", 0, 0.5, 0.6, "9.7.9.7.7 9.7.979.7"

    ; Bars 3 and 4, D phrygian: the riff higher, double speed in the drums, and the fill home.
    ;   F5 Eb5 Ab5  G5 A7
    Line "Solo", 9, 0.5, 0.54, "c6! - ~bb5 - ~ab5! - g5 f5 . | bb5, ~d6! - a5 - ~g5 . . c#5"
    Line "Guitar", 9, 0.25, 0.64, {{
        f2! f2 . f2 eb2 . eb2 eb2,  ab2! - - g2 - - f2 - eb2 e2
        g2! - g2 . a2 - - bb2  - - a2! a2, . a2 a1! a1 c#2 - }}
    Line "Bass", 9, 0.25, 0.45, {{
        f1! - f2 f1 eb2! - eb2 -  ab1! - - g1 - - f1 - eb2 e2
        g1! - g2 - a1! - - bb1 - - a1 - - a2 a1! - c#2 - }}
    Line "Brass", 9, 0.5, 0.38, {{
        ab4+c5+f5! . g4+bb4+eb5 . ab4+c5+eb5! . . . .
        bb4+d5+g5! . a4+c#5+g5! . . . . a4+c#5+e5! . }}
    Figure "Pluck", 9, 0.25, 0.4, 4.5, "f4+ab4+c5+eb5", "0! 1, 2 3 2! 1, 0 1 2! 3, 4 3 2, 3 4 5! 6 7!"
    Figure "Pluck", 13.5, 0.25, 0.4, 1.5, "g4+bb4+d5 g4+a4+c#5+e5 g4+a4+c#5+e5", "3 2 1 0 1 2  3 4 3 2 1 2  3 4 5 6 7 8"
    Beat "Kick", 9, 0.25, 0.63, "X.XX..X.X.XX..X.X. X.XX..X.X.....X..."
    Beat "Snare", 9, 0.25, 0.86, "....X..2....X..2.. ....X..5.6X.7887.6"
    Beat "OpenHat", 9, 0.5, 0.75, "9.9.9.9.9 9.9.9...."
    Beat "HighTom", 13.5, 0.25, 0.85, "........X..9......"
    Beat "LowTom", 13.5, 0.25, 0.8, "...............97."
    Beat "Crash", 9, 0.5, 0.8, "X"
    Line "Pad", 0, 4.5, 0.66, "g3+bb3+d4 g3+bb3+eb4 ab3+c4+f4"
    Line "Pad", 13.5, 1.5, 0.66, "g3+bb3+d4 a3+c#4+g4 a3+c#4+g4"
endin
</CsInstruments>
<CsScore>
; length of three files, bars, beats of a bar, level, room, push, width
i "Conductor" 0 [3 * 6.5] 4 4.5 0.61 0.4 0.25 0.85
</CsScore>
</CsoundSynthesizer>
