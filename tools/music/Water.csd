<CsoundSynthesizer>
<CsInstruments>
; On the water. Two files of 12 bars of twelve eighths (four beats of three) in 26 seconds.
; Key: F lydian
; The hook again, up the fourth c-f and on by steps, now to the raised fourth b.
#include "Studio.orc"

giEcho = 2 / 3

instr First
    ; Bars 1 to 4, F lydian: harp waves, and the voice comes in after a breath.
    ;   Fmaj7#11  G/F  Em7  Am9
    Line "Voice", 0, 1/3, 0.68, {{
        c5! - -  ~f5 - -  - - g5  ~a5 - -  | ~b5! - -  - - a5  g5 - -  . . .
        . . d5   e5 - -  ~b5! - -  - - a5   | ~g5 - -  e5 - -  - - -  . . . }}
    Figure "Harp", 0, 1/3, 0.5, 4, "f3+c4+e4+g4+b4 f3+b3+d4+g4 e3+b3+d4+g4 a2+e3+b3+c4+g4", {{
        0! 1 2,  3 4 5  6! 5 4,  3 2 1,   0! . 2,  1 3 2  4! 3 .  5 4, 3
        0! 2, 1  3 . 2  4! . 3,  5 4 .   0 1, .  2 3 .  4 5 6!  . 5 4, }}
    Line "SoftBass", 0, 1/3, 0.77, {{
        f1! - -  - - c2  f2 - -  c2 - -  | f1! - -  - - -  g1 - -  f1 - f#1,
        e1! - -  - - b1  e2 - -  d2 - b1, | a1! - -  - - e2  a1 - -  c2 - a1, }}
    Beat "SoftKick", 0, 1/3, 0.69, "X.. ..x ... ..x  X.. ... X.. ...  X.. ..x ... ..x  X.. ... X.. .x."
    Beat "Shaker", 0, 1/3, 0.8, "5.3 5.3 5.3 5.3  5.3 5.3 5.3 535  5.3 5.3 5.3 5.3  5.3 533 5.3 579"
    Beat "Rim", 0, 1/3, 0.5, "... ... X.. ...  ... ... X.. ..3  ... ... X.. ...  ... ... X.. 3.5"

    ; Bars 5 to 8, F lydian: the reed answers below, the bass walks, hats come in.
    ;   Dm9  G13  Cmaj7/E  Fmaj7 Em7
    Line "Reed", 16, 1/3, 0.5, {{
        a4 - -  ~d5 - -  - - e5  f5 - e5,  | ~d5 - -  b4 - -  . . .  e5 - f5
        ~g5! - -  - - e5  c5 - -  ~b4 - -  | c5 - -  a5! - -  g5 - e5,  . . . }}
    Line "Voice", 16, 1/3, 0.5, {{
        . . .  . . .  . . .  . . .  | . . .  . . .  g5 - -  ~a5 - - 
        b5 - -  - - -  . . .  . . . | . . .  . . .  . . .  . . d5 }}
    Figure "Harp", 16, 1/3, 0.48, 4, "d3+a3+c4+e4+f4 g2+f3+b3+e4 e3+g3+c4+b4", {{
        0! 1 2,  3 4 .  5! . 4,  3 . 2   0 . 1,  . 2! .  3 . 2,  1 2 3   0! 3 2,  1 . 4!  3 2, .  5 4 3, }}
    Figure "Harp", 28, 1/3, 0.5, 2, "f3+c4+e4+a4 e3+b3+d4+g4", "0! 1 2,  3 4 5!  4 3, 2  1 . ."
    Line "SoftBass", 16, 1/3, 0.81, {{
        d2! - -  a1 - d2  - - e2  f2 - f#2, | g2! - -  - - d2  g1 - -  b1 - d2,
        e2! - -  - - c2  g1 - -  a1 - b1,   | f2! - -  c2 - f2,  e2 - -  b1 - e1 }}
    Beat "SoftKick", 16, 1/3, 0.77, "X.. ..x X.. ..o  X.. ..x ... x..  X.. ..x X.. ..o  X.. x.. X.. ..."
    Beat "Snare", 16, 1/3, 0.5, "... x.. ... x..  ... x.1 ... x..  ... x.. ..1 x..  ... x.. ... x45"
    Beat "HighTom", 28, 1/3, 0.55, "... ... 6.6 ..."
    Beat "LowTom", 28, 1/3, 0.55, "... ... ... .79"
    Beat "Hat", 16, 1/3, 0.45, "7.5 7.5 7.5 7.5  7.5 755 7.5 7.5  7.5 7.5 7.5 755  7.5 7.5 7.5 ..."
    Beat "Shaker", 16, 1/3, 0.7, "5.3 5.3 5.3 5.3  5.3 5.3 5.3 5.3  5.3 5.3 5.3 5.3  5.3 5.3 5.3 5.."

    ; Bars 9 to 12, F lydian: voice and flute together, high; the bass steps round to G, which wants on.
    ;   Fmaj7 G  Em7 Am7  Dm9 Em7  Fmaj7 G13
    Line "Voice", 32, 1/3, 0.72, {{
        c6! - -  - - b5  a5 - .  b5 - -   | ~g5 - -  - - e5  . . .  e5 - g5
        ~a5! - -  - - e5  g5 - .  . . b5   | ~c6! - -  ~b5 - -  - - -  a5 - - }}
    Line "Flute", 32, 1/3, 0.5, {{
        a5 - -  - - g5  f5 - -  g5 - -     | e5 - -  - - c5  . . .  c5 - e5
        f5 - -  - - c5  e5 - .  . . g5     | ~a5 - -  ~g5 - -  - - -  f5 - - }}
    Line "Bell", 32, 1/3, 0.32, {{
        . . .  . . .  . . .  . . .  | . . .  . . .  b5 . d6  g6 . . 
        . . .  . . .  . . .  . . .  | . . .  . . e6  . g6 .  b6, . . }}
    Figure "Harp", 32, 1/3, 0.52, 2, {{
        f3+a3+c4+e4 g3+b3+d4 e3+g3+b3+d4 a3+c4+e4+g4
        d3+a3+c4+f4 e3+b3+d4+g4 f3+a3+c4+e4 g3+b3+e4+f4 }}, {{
        0! 2, 1  3 2 4!   3! 2 1,  0 1 2   0! 1, 2  3 4 5!   4! . 3,  2 . 1
        0! . 2,  1 . 3   2! . 4  3, . 5   0! 1 2  3, 4 5   6! 5 4,  3 4 5! }}
    Line "SoftBass", 32, 1/3, 0.86, {{
        f2! - -  c2 - f2  g2 - -  d2 - g2, | e2! - -  - - b1  a1 - -  e2 - a2,
        d2! - -  - - a1  e2 - -  b1 - e2,  | f2! - c2  f1 - -  g1 - -  g2 - g1 }}
    Beat "SoftKick", 32, 1/3, 0.86, "X.. ..x X.. ..x  X.. x.. X.. ..x  X.. ..x X.. ..x  X.. X.. X.. X.."
    Beat "Snare", 32, 1/3, 0.6, "... X.. ..1 X..  ... X.1 ... X..  ..1 X.. ... X.2  ... X.. 4.5 678"
    Beat "Ride", 32, 1/3, 0.5, "9.5 9.5 9.5 9.5  9.5 9.5 955 9.5  9.5 9.5 9.5 955  9.5 9.. ... ..."
    Beat "HighTom", 44, 1/3, 0.7, "... ... ... X.."
    Beat "LowTom", 44, 1/3, 0.8, "... ... ... .XX"
    Beat "Crash", 32, 1/3, 0.5, "x"

    Line "Pad", 0, 4, 0.74, "g3+a3+c4 g3+b3+d4 g3+b3+d4 g3+b3+e4 a3+c4+f4 a3+b3+f4 g3+d4+e4"
    Line "Pad", 28, 2, 0.84, "a3+c4+e4 g3+b3+d4 a3+c4+e4 g3+b3+d4 g3+b3+d4 g3+c4+e4 a3+c4+f4 g3+b3+d4 a3+c4+e4 b3+e4+f4"
endin

instr Second
    ; Bars 1 to 4, A flat lydian: open sea. Of the drums a shaker is left, and a touch of the rim; the flute is alone
    ; over long chords and drops of bells.
    ;   Abmaj7  Bb/Ab  Gm7  Cm9
    Line "Flute", 0, 1/3, 0.64, {{
        g5! - -  - - -  ~eb5 - -  c5 - .   | ~d5 - -  - - f5  bb5 - -  - . .
        ~a5 - -  g5 - -  . . f5  ~d5 - -   | eb5 - -  - - -  . . .  g4 - c5 }}
    Line "Bell", 0, 1/3, 0.34, {{
        . . .  . . .  . . eb6  . g6 .  | . . .  . . .  . . .  d6 . f6 
        . . bb5  . . .  . . d6  . . .  | . . .  g6 . eb6  d6 . .  . . . }}
    Figure "Harp", 0, 1/3, 0.4, 4, "ab2+eb3+g3+c4 ab2+f3+bb3+d4 g2+d3+f3+bb3 c3+g3+bb3+d4+eb4", {{
        0! . 1,  . 2 .  3 . 4!  . . .   0 . .  1, . 2  . 3! .  4, . .  
        0 . 1  2 . 3  . . 4  . 5 .   0 1 .  2 3 .  4 . 3  2 . 1 }}
    Line "SoftBass", 0, 1, 0.62, "ab1 - - - | ab1 - - f1, | g1 - - - | c2 - - g1,"
    Beat "Rim", 12, 1/3, 0.3, "... ... ..4 5.7"
    Beat "Shaker", 0, 1/3, 0.4, "5.. ... 5.. ...  5.. ... 5.. ..3  5.. ... 5.. ...  5.. ... 5.3 5.3"

    ; Bars 5 to 8, from A flat back to F: the swell. E flat becomes the step above D minor, and G waits for F.
    ;   Fm9  Bb13  Ebmaj7  Dm7 G7
    Line "Flute", 16, 1/3, 0.7, {{
        c5! - -  ~f5 - -  - - g5  ab5 - -  | ~g5 - -  - - f5  d5 - -  . . .
        . . .  eb5 - f5  ~g5! - -  bb5 - -  | ~a5 - -  - - f5  ~g5 - -  a5 - b5 }}
    Line "Reed", 16, 1/3, 0.42, {{
        . . .  . . .  . . .  . . c5      | ~d5 - -  - - c5  bb4 - -  c5 - d5
        ~eb5 - -  - - -  d5 - -  - - eb5    | f5 - -  - - d5  ~d5 - -  f5 - - }}
    Figure "Harp", 16, 1/3, 0.46, 4, "f3+c4+eb4+g4+ab4 bb2+f3+ab3+d4+g4 eb3+bb3+d4+g4", {{
        0! 1 2,  . 3 .  4! 3 2,  . 1 .   0! 1, .  2 3 .  4! . 3,  4 . 5   0! . 1,  2 3 4!  5 . 4,  5 6 7! }}
    Figure "Harp", 28, 1/3, 0.5, 2, "d3+a3+c4+f4 g3+b3+d4+f4", "0 1 2  3 4 5  0 1 2  3 4 5"
    Line "SoftBass", 16, 1/3, 0.75, {{
        f1! - -  - - -  f1 - -  - - c2,  | bb1! - -  - - -  bb1 - -  f1 - bb1,
        eb2! - -  - - bb1  eb2 - -  - - eb2, | d2! - -  a1 - d2,  g1 - -  g1 - g1 }}
    Beat "SoftKick", 16, 1/3, 0.73, "X.. ... ... ...  X.. ... ... ...  X.. ... X.. ...  X.. X.. X.. X.."
    Beat "Snare", 16, 1/3, 0.45, "... ... ... ...  ... ... ... ..2  ..2 ..3 ..3 .33  3.4 344 455 678"
    Beat "Hat", 16, 1/3, 0.4, "..5 ..5 ..5 ..5  ..5 ..5 ..5 .55  7.5 7.5 7.5 7.5  7.5 7.5 7.5 ..."
    Line "Riser", 24, 1, 0.4, "c6 - - - - - - -"

    ; Bars 9 to 12, F lydian: all of it at its widest, voice and solo guitar far away; then the wave runs out.
    ;   Fmaj7#11 G/F  Em7 Am7  Dm9 G  C/E Am9 G
    Line "Voice", 32, 1/3, 0.78, {{
        c6! - -  ~b5 - -  - . g5  ~a5 - -  | ~b5! - -  - - g5  e5 - .  . . e5
        ~f5 - -  a5 - -  - - c6  ~d6! - -  | ~e6 - -  - - d6  b5 - .  . . g5 }}
    Line "Solo", 32, 1/3, 0.34, {{
        f5! - -  ~e5 - -  - - d5  ~d5 - -  | ~g5! - -  - - e5  c5 - -  . . c5
        ~d5 - -  f5 - -  - - a5  ~b5! - -  | ~c6 - -  - - g5  ~e5 - -  d5 - - }}
    Figure "Pluck", 32, 1/3, 0.34, 2, {{
        c4+e4+g4+b4 b3+d4+g4 b3+d4+e4+g4 c4+e4+g4+a4
        c4+d4+f4+a4 b3+d4+g4 c4+e4+g4 b3+d4+g4 }}, {{
        0! 1, 2  3 2, 1   2! 1, 0  1 2, 3   0! 2, 1  3 2, 4!   3 1, 2  0 1 .
        0! 1, 2  3 4, 5!   4 5, 3  4 2, 3   5! 4, 3  2 1, 0   1 . 0  . . . }}
    Figure "Harp", 32, 1/3, 0.46, 2, {{
        f3+c4+e4+b4 f3+b3+d4+g4 e3+b3+d4+g4 a2+e3+c4+g4
        d3+a3+c4+e4 g2+d3+b3+f4 e3+g3+c4+e4 a2+e3+b3+d4 }}, {{
        0 . 1  . 2 .   3 . 4  . 3 .   0 1 .  2 . 3   0 . 1  2 3 4
        0 . 2  3 . 4   0 1 2  3 4 5   0 . 1  2 . 3   0 1 2  3 4 5 }}
    Line "SoftBass", 32, 1/3, 0.94, {{
        f1! - f1,  c2 - f2  f1 - f1,  g1 - f#1, | e1! - e2  - - b1  a1 - a1,  e2 - c2,
        d2! - d1  - - a1  g1 - g1,  b1 - d2,   | e2! - -  c2 - e2  a1 - -  g1 - g1 }}
    Beat "SoftKick", 32, 1/3, 0.86, "X.. X.x X.. X.x  X.. X.x X.. X..  X.x X.. X.x X..  X.. ..x X.. ..."
    Beat "Snare", 32, 1/3, 0.66, "... X.. ... X.2  ... X.. ..2 X..  ..2 X.. ... X..  ... X.. 6.5 4.3"
    Beat "Ride", 32, 1/3, 0.55, "9.5 9.5 9.5 9.5  9.5 955 9.5 9.5  955 9.5 955 9.5  9.5 9.. ... ..."
    Beat "OpenHat", 32, 1/3, 0.5, "..9 ..9 ..9 ..9  ..9 ..9 ..9 ..9  ..9 ..9 ..9 ..9  ..9 ... ... ..."
    Beat "LowTom", 44, 1/3, 0.7, "... ... ..7 .X."
    Beat "Crash", 32, 1/3, 0.7, "X.. ... ... ...  ... ... ... ...  x"

    Line "Pad", 0, 4, 0.7, "g3+c4+eb4 bb3+d4+f4 a3+bb3+f4 g3+bb3+eb4 ab3+c4+eb4 g3+c4+d4 g3+bb3+eb4"
    Line "Pad", 28, 2, 0.88, "a3+c4+f4 b3+d4+f4 a3+c4+g4 b3+d4+g4 g3+b3+d4 g3+c4+e4 a3+c4+f4 g3+b3+d4 g3+c4+e4 g3+b3+d4"
endin
</CsInstruments>
<CsScore>
; length of three files, bars, beats of a bar, level, room, push, width
i "Conductor" 0 [3 * 26] 12 4 0.97 0.8 0.2 0.52
</CsScore>
</CsoundSynthesizer>
