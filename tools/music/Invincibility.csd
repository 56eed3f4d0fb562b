<CsoundSynthesizer>
<CsInstruments>
; Invincible. Two files of five bars of four in 6.5 seconds: four bars, and one that is all fill.
; Key: A major
; The hook in major and in a hurry: up the fourth e-a, on by steps to c#.
#include "Studio.orc"

instr First
    ; Bars 1 to 4, A major: lead and bells together over four kicks a bar.
    ;   A F#m7  Dmaj7 E  C#m7 F#m7  Bm7 E7
    Line "Lead", 0, 0.5, 0.74, {{
        e5, a5! . b5 ~c#6! . b5 a5 | f#5 - a5! . g#5, - b5 -
        e6! - c#6 . ~b5, c#6 a5 - | ~f#5 . b5! d6 ~c#6 - . b5, }}
    Line "Bell", 0, 0.5, 0.42, {{
        e6, a6! . b6 c#7! . b6 a6 | . . a6! . . . b6 -
        e6! - . . b6, c#7 a6 - | . . b6! d7 . . . . }}
    Line "Brass", 0, 0.5, 0.55, {{
        a4+c#5+e5! . . a4+c#5+e5 . . a4+c#5+f#5! . | a4+c#5+d5! . . . g#4+b4+e5! . . b4+d5+e5
        g#4+c#5+e5! . . g#4+c#5+e5 . a4+c#5+f#5! . . | a4+b4+d5! . a4+b4+d5 . g#4+b4+d5! - . . }}
    Figure "Pluck", 0, 0.25, 0.5, 2, {{
        e4+a4+c#5 e4+f#4+a4+c#5 d4+f#4+a4+c#5 e4+g#4+b4
        e4+g#4+b4+c#5 f#4+a4+c#5 d4+f#4+a4+b4 e4+g#4+b4+d5 }}, {{
        0! 1, 2 3! 2, 1 3 2  4! 3, 2 1 0, 1 2 3  0! . 1, 2 3! . 2, 1  3! 4, 5 4! 3, 2 1 0
        2! 0, 3 1 4! 2, 3 1  0! 2, 1 3 2, 4! 3, 5  0 1, 2! . 3 2, 1 .  5! 4, 3 2 1, 2 3 4! }}
    Line "Bass", 0, 0.5, 0.82, {{
        a1! a2 a1 e2 f#1! f#2 c#2 f#2 | d2! d3 . d2 e2! e1 . d#2
        c#2! c#3 g#1 c#2 f#1! . f#2 c2 | b1! . b2 b1 e2! e1 g#1 b1 }}
    Beat "Kick", 0, 0.5, 0.9, "X.X.X.X. X.X.X.Xo X.X.X.X. X.X.X.X."
    Beat "Clap", 0, 0.25, 0.8, "....X.......X... ....X.......X..x ....X.......X... ....X...X...X..."
    Beat "Snare", 0, 0.25, 0.45, "......2..2.....2 ..2...2..2...... ......2..2....22 ..2...2...2.3456"
    Beat "Hat", 0, 0.25, 0.7, "9.5.9.5.9.5.9.57 9.5.9.579.5.9.5. 9.559.5.9.559.5. 9.5.9.5.9.5....."
    Beat "OpenHat", 0, 0.5, 0.65, ".9.9.9.9 .9.9.9.9 .9.9.9.9 .9.9.9.."
    Beat "Crash", 0, 0.5, 0.4, "X"

    ; Bar 5: the fill, on E7.
    ;   D/E E7
    Line "Lead", 16, 0.25, 0.74, "a5 - b5 - ~c#6 - d6 - ~e6! - . . g#5, - b5 -"
    Line "Brass", 16, 0.5, 0.62, "a4+d5+f#5! . . a4+d5+f#5 . . g#4+d5+e5! -"
    Line "Bass", 16, 0.5, 0.86, "e2! . e2 e1 . e2 g#1 g#2"
    Figure "Pluck", 16, 0.25, 0.55, 4, "e4+g#4+b4+d5", "0 1, 2 3! 4, 5 6! 7,  8! 7 6, 5 4! 3, 2 1"
    Beat "Kick", 16, 0.25, 0.9, "X.....X...X....."
    Beat "Snare", 16, 0.25, 0.78, "X..6..X..67.7777"
    Beat "HighTom", 16, 0.25, 0.85, ".9..9...X......."
    Beat "LowTom", 16, 0.25, 0.8, "...........9.8.."
    Line "Pad", 0, 2, 0.7, {{
        a3+c#4+e4 a3+c#4+f#4 a3+c#4+f#4 g#3+b3+e4 g#3+c#4+e4
        a3+c#4+e4 a3+b3+d4 g#3+b3+d4 a3+d4+f#4 g#3+b3+d4 }}
endin

instr Second
    ; Bars 1 and 2, F sharp minor: a moment of air, the kick away.
    ;   F#m9 Dmaj7  Bm9 C#7
    Line "Reed", 0, 0.5, 0.55, "a5! - g#5 a5 ~c#6 - a5 . | f#5, - b5! - ~c#6 b5 g#5 ."
    Line "Bell", 0, 0.5, 0.4, ". . . . . . e6 a6 | . . . . . . f6 g#6"
    Figure "Pluck", 0, 0.25, 0.37, 2, "f#4+a4+c#5+g#5 d4+f#4+a4+c#5 d4+f#4+b4+c#5 c#4+f4+g#4+b4", {{
        0! . 2, . 1 . 3! .  2 1, . 0 . 1, 2 .  0! 1, 2 3 . 4! 3, 2  1 2, 3! 4 5! 4, 3 2 }}
    Line "Bass", 0, 0.5, 0.58, "f#1! - - f#2, d2 - - d#2, | b1! - - f#1, c#2 - c#2, e2"
    Beat "Clap", 0, 0.25, 0.55, "........X....... ........X.....5."
    Beat "Hat", 0, 0.25, 0.44, "9.5.7.5.9.5.7.5. 9.5.7.5.9.577.77"
    Beat "Crash", 0, 0.5, 0.4, "x"

    ; Bars 3 and 4, back to A major: everything, the hook over a walking bass.
    ;   D E  C#m7 F#7
    Line "Lead", 8, 0.5, 0.8, "d6! - c#6 d6 ~e6! . b5 . | e5, ~g#5 b5 . ~c#6! a#5 c#6 e6,"
    Line "Bell", 8, 0.5, 0.42, "d7! . c#7 d7 e7! . b6 . | . g#6 . c#7! . a#6 . ."
    Line "Brass", 8, 0.5, 0.6, {{
        a4+d5+f#5! . . a4+d5+f#5 b4+e5+g#5! . b4+e5 .
        b4+c#5+e5! . . . a#4+c#5+e5! . a#4+c#5+e5 . }}
    Figure "Pluck", 8, 0.25, 0.5, 2, "d4+f#4+a4 e4+g#4+b4 c#4+e4+g#4+b4 c#4+e4+f#4+a#4", {{
        2! 3, 4 5! 4, 3 2 1  2! 3, 4 5! 4, 3 4 5  0! 2, 1 3! 2, 4 3 5  6! 5, 4 3 2, 3 4 5! }}
    Line "Bass", 8, 0.5, 0.84, "d2! d3 a1 d2 e2! e3 b1 c2 | c#2! . c#3 c#2 f#1! f#2 a#1 c#2"
    Beat "Kick", 8, 0.5, 0.92, "X.X.X.X. X.X.X.Xx"
    Beat "Clap", 8, 0.25, 0.85, "....X.......X... ....X.......X.X."
    Beat "Snare", 8, 0.25, 0.5, "..2....2.2.....2 ..2....2.2..3456"
    Beat "Hat", 8, 0.25, 0.75, "9.5.9.5.9.559.5. 9.559.5.9......."
    Beat "OpenHat", 8, 0.5, 0.75, ".9.9.9.9 .9.9.9.."
    Beat "Crash", 8, 0.5, 0.8, "X"

    ; Bar 5: the fill, on the way to the first file.
    ;   Bm7 E7
    Line "Lead", 16, 0.25, 0.78, "d6! - - b5 - - a5 . ~g#5! - b5 . e5, - g#5, -"
    Line "Brass", 16, 0.5, 0.62, "a4+b4+d5! . a4+b4+d5 . g#4+d5+e5! . . g#4+d5+e5"
    Line "Bass", 16, 0.5, 0.86, "b1! b2 f#1 b1 e2! e1 e2 g#1"
    Figure "Pluck", 16, 0.25, 0.52, 2, "d4+f#4+a4+b4 e4+g#4+b4+d5", "3 . 2 . 1 . 0 .  0 1 2 3 4 5 6 7"
    Beat "Kick", 16, 0.25, 0.9, "X...X...X...X..."
    Beat "Snare", 16, 0.25, 0.78, "..5.X..5..X.X655"
    Beat "HighTom", 16, 0.25, 0.85, ".......9X......."
    Beat "LowTom", 16, 0.25, 0.9, ".........9.9...."
    Line "Pad", 0, 2, 0.7, {{
        a3+c#4+g#4 a3+c#4+f#4 b3+c#4+f#4 g#3+b3+f4 a3+d4+f#4
        g#3+b3+e4 g#3+b3+e4 a#3+c#4+e4 a3+b3+d4 g#3+b3+d4 }}
endin
</CsInstruments>
<CsScore>
; length of three files, bars, beats of a bar, level, room, push, width
i "Conductor" 0 [3 * 6.5] 5 4 0.64 0.45 0.4 0.65
</CsScore>
</CsoundSynthesizer>
