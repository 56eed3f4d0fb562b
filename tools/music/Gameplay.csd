<CsoundSynthesizer>
<CsInstruments>
; Driving. Two files of 16 bars of four in 26 seconds, mostly two chords a bar.
; Key: E minor
; The hook comes in with two notes from below (b d, then e), which the bar before it has, also over the files' ends.
#include "Studio.orc"

instr First
    ; Bars 1 to 4, E minor: the hook, over plucks that leave it room.
    ;   Em9 G/D   Cmaj7 D   Em7 G/D   C6 B7
    Line "Lead", 0, 0.5, 0.78, {{
        e5! - - f#5 ~g5 - . b4 | g5 - f#5 e5, - d5 . . | b4, - e5! - f#5 ~g5 - a5 | ~b5! - a5 - f#5, - . . }}
    Line "Bass", 0, 0.5, 0.82, {{
        e2! . e3 e2 d2 . d3 d2, | c2! . c3, g2 d2 . a2 d#2 | e2! e2, . e3 d2 d2, . b1 | c2! . g2 c3, b1 . f#2 g#2 }}
    Figure "Pluck", 0, 0.25, 0.5, 2, "e4+g4+b4 d4+g4+b4 c4+e4+b4 d4+f#4+a4", {{
        0! . . 2 . . 1, .  . 3! . 2 . . 1, .  . 2 . . 3! . 1, .  0, . 2 . . 4! . 3 }}
    Figure "Pluck", 8, 0.25, 0.5, 2, "e4+g4+d5 d4+g4+b4 c4+e4+g4 d#4+f#4+a4", {{
        0! . 1, . . 2 . .  3! . . 2, . 1 . .  0 . . 1, . 2 . 3!  . 2, . 3 . 4 . 5! }}
    Beat "Kick", 0, 0.25, 0.85, "X.....X...X..... X.....X..xX..... X..x..X...X..... X.....X...X...x."
    Beat "Snare", 0, 0.25, 0.8, "....X..2....X..1 ....X..2.2..X... ....X.......X.2. ....X..2....X.46"
    Beat "Hat", 0, 0.25, 0.7, "7.3.7.3.7.3.7.35 7.3.7.3.7.357.3. 7.3.735.7.3.7.3. 7.3.7.3.7.3.7..."

    ; Bars 5 to 8, E minor: the answer, round the circle of fifths; the plucks run.
    ;   Am9 D9   Gmaj7 Cmaj7   F#m7b5 B7   Em D
    Line "Lead", 16, 0.5, 0.8, {{
        . e5, a5 b5 ~c6! - - b5 | ~b5 - - g5 . e5, g5 - | a5 - - c6 ~b5! - a5, - | ~g5 - e5 - . . b4, d5 }}
    Line "Bass", 16, 0.5, 0.84, {{
        a2! . a1 e2 d2 . d3 f#2 | g2! d2 . g2, c2 c3 g2 f2 | f#2! . c3 f#2, b1 . b2 d#2 | e2! . b2 e2, d2 d3 . d#2 }}
    Figure "Pluck", 16, 0.25, 0.5, 2, "c4+e4+g4+b4 c4+d4+f#4+e5 b3+d4+f#4+g4 b3+c4+e4+g4", {{
        0! 1, 2 3 4! 3, 2 1  3! 2, 1 0 1, 2 3 4!  . 1, 2 3! . 4 3, 2  5! 4 3, . 2 1, 0 . }}
    Figure "Pluck", 24, 0.25, 0.5, 2, "c4+e4+f#4+a4 b3+d#4+f#4+a4 e4+g4+b4 d4+f#4+a4", {{
        0 2! 1, 3 . 4! 3, 5  4! 3 2, 1 0, 1 2 3!  0 . 1, 2 . 3! 4, .  5! . 4, . 3 . . . }}
    Beat "Kick", 16, 0.25, 0.88, "X...X...X.x.X... X...X..xX...X... X...X...X.x.X..x X...X...X...X..."
    Beat "Snare", 16, 0.25, 0.82, "....X..2....X.2. ....X.......X..3 ....X..2.2..X... ....X...X.4X.678"
    Beat "Ride", 16, 0.5, 0.7, "9565956597559565 9565956695......"
    Beat "Hat", 16, 0.25, 0.6, "..7...7...7...7. ..7...7...7...7. ..7...7...7.3.7. ..7...7........."
    Beat "HighTom", 28, 0.25, 0.75, ".... .... .7.. 9..."
    Beat "LowTom", 28, 0.25, 0.85, ".... .... .... .X.X"

    ; Bars 9 to 12, E minor: the hook again, higher at its end; reed and brass answer in its rests.
    ;   Em9 G/D   Cmaj7 D   Em7 A9   Am7 B7
    Line "Lead", 32, 0.5, 0.84, {{
        e5! - - f#5 ~g5 - . b4, | a5! - g5 f#5 - d5 . . | b4, - e5! - f#5 ~g5 - b5 | ~d6! - - b5 - ~a5 . . }}
    Line "Reed", 32, 0.5, 0.62, {{
        b4 - - - - a4 g4 . | . . . . . . f#5 a5 | ~b5! - - . . . . . | . . . . . . b5 a5 | g5 - . . . . . . }}
    Line "Brass", 32, 0.5, 0.5, {{
        . . . g4+b4+e5! . . . . | . . g4+b4+e5 . . . f#4+a4+d5! -
        . . . g4+b4+d5! . . c#5+e5+g5 - | . . g4+c5+e5 . f#4+a4+e5! . d#5+f#5+a5 - }}
    Line "Bass", 32, 0.5, 0.86, {{
        e2! e3 . e2 d2 . d3 a2, | c2! c3 . g2 d2 . d3 d#2 | e2! . e2, b2 a1 a2 . e2 | a1! . e2 a2, b1 . f#2 b2 }}
    Figure "Pluck", 32, 0.25, 0.42, 2, "b3+e4+g4 b3+d4+g4 c4+e4+g4 a3+d4+f#4", {{
        . . 3 . . . 2 .  . . 4 . . . 3 .  . . 2 3 . . 4 .  . . 3 . . 2 . 1 }}
    Figure "Pluck", 40, 0.25, 0.42, 2, "d4+e4+g4 c#4+e4+g4 c4+e4+g4 d#4+f#4+a4", {{
        . 0 . 3 . 1 . 4  . 2 . 5 . 1 . 4  3 . . 2 . . 1 .  0 . 1 . 2 . 3 4 }}
    Beat "Kick", 32, 0.25, 0.9, "X..X..X.X..X..X. X..X..X.X...X..x X..X..X.X..X..X. X..X..X.X.x.X..."
    Beat "Snare", 32, 0.25, 0.86, "....X..2.2..X..2 ....X..2....X.2. ....X.22....X..2 ....X..2.2..4678"
    Beat "Hat", 32, 0.25, 0.8, "9.5.9.5.9.5.9.5. 9.559.5.9.559.5. 9.5.9.559.5.9.5. 9.559.559.5....."
    Beat "OpenHat", 32, 0.5, 0.6, ".......x .......x .......x ........"
    Beat "Crash", 32, 0.5, 0.75, "X"

    ; Bars 13 to 16, E minor: a climb over a rising and falling bass, and a half cadence that the other file takes up.
    ;   Cmaj7 D   Bm7 Em7   Am9 Bm7   C C/D B7
    Line "Lead", 48, 0.5, 0.86, {{
        e5, g5 - b5! - ~a5 - f#5 | ~f#5 - d5, . . g5 - b5 | ~c6! - b5 a5 - . . b5 | ~c6 - ~d6 - ~d#6! - - - }}
    Line "Lead", 56, 0.5, 0.5, ". . . . . . f#5, g5 | g5 - a5 - ~b5 - a5 -"
    Line "Bass", 48, 0.5, 0.88, {{
        c2! . g2 c3, d2 . a2 c2 | b1! b2 . f#2, e2 e3 . g#2 | a2! . e2 a2, b1 . f#2 b1 | c2! c3 d2 d3 b1! b2 f#2 b1 }}
    Figure "Pluck", 48, 0.25, 0.5, 2, "c4+e4+g4+b4 d4+f#4+a4 b3+d4+f#4+a4 e4+g4+b4+d5", {{
        0! 1, 3 2 4! 3, 5 4  0! 2 1, 3 2, 4! 3, 5  4! 2, 3 1 2! 0, 1 2  3! 1, 2 0 4! 2, 3 1 }}
    Figure "Pluck", 56, 0.25, 0.52, 2, "c4+e4+g4+b4 d4+f#4+a4+b4 e4+g4+c5 d#4+f#4+b4", {{
        0! . 1, 2 3! . 2, 1  0! 1, 2 3 . 4 5, 6!  0! 1, 2 0! 1, 2 3! 4  0, 1, 2, 3 4 5 6! 7! }}
    Beat "Kick", 48, 0.25, 0.92, "X...X...X...X... X...X...X...X.x. X...X...X...X... X...X...X...X..."
    Beat "Snare", 48, 0.25, 0.88, "....X..2....X... ....X..2....X.22 ....X..2....X.3. X..4X..46.6.5566"
    Beat "Hat", 48, 0.25, 0.7, "9...9...9...9... 9...9...9...9... 9...9...9...9... 9...9..........."
    Beat "OpenHat", 48, 0.5, 0.75, ".9.7.9.7 .9.7.9.7 .9.7.9.7 .9.7...."
    Beat "HighTom", 60, 0.25, 0.8, ".... .... 9... 9..."
    Beat "LowTom", 60, 0.25, 0.8, ".... .... ..9. ..8."
    Beat "Crash", 48, 0.5, 0.7, "x....... ........ x"

    Line "Pad", 0, 2, 0.72, {{
        g3+b3+f#4 g3+b3+d4 | g3+b3+e4 f#3+a3+d4 | g3+b3+d4 g3+b3+d4 | g3+a3+e4 f#3+a3+d#4
        g3+b3+e4 f#3+c4+e4 | f#3+b3+d4 g3+b3+e4 | a3+c4+e4 a3+b3+d#4 | g3+b3+e4 f#3+a3+d4 }}
    Line "Pad", 32, 2, 0.86, {{
        g3+b3+f#4 g3+b3+d4 | g3+b3+e4 a3+d4+f#4 | g3+d4+e4 g3+c#4+e4 | g3+c4+e4 a3+b3+d#4
        g3+b3+e4 a3+d4+f#4 | a3+d4+f#4 g3+d4+e4 | g3+c4+e4 a3+d4+f#4 | g3+c4+e4 a3+d#4+f#4 }}
endin

instr Second
    ; Bars 1 to 4, on the way out of E minor: half time without kick. The flute sings, the piano is heard for once.
    ;   Cmaj9   Bm7   Am9   Em/G
    Line "Flute", 0, 0.5, 0.62, {{
        e6 - - - - - . b5 | ~a5 - - b5 - - f#5, . | g5 - - ~e5 - - c5, e5 | ~d5 - - - - - . . }}
    Figure "Piano", 0, 0.5, 0.52, 4, "g3+b3+d4+e4 f#3+a3+d4+e4 g3+b3+c4+e4 g3+b3+e4+f#4", {{
        0! . 2, 3 . 5! . 4,  1, 2 . 4! . 3, 5 .  0 1, 3! . 4 . 6! 5,  . 2, 3 . 5! 4, . . }}
    Line "SoftBass", 0, 0.5, 0.72, {{
        c2 - - - - - g2, - | b1 - - - - f#2, - - | a1 - - - - - e2, - | g1 - - - d2, - b1, - }}
    Line "Pad", 0, 4, 0.62, "g3+d4+e4 f#3+a3+d4 g3+b3+c4+e4 g3+b3+e4"
    Beat "Rim", 0, 0.25, 0.5, "........X....... ........X.....3. ........X....... ........X..3..5."
    Beat "Ride", 0, 0.5, 0.45, "7.5.7.53 7.5.735. 7.5.7.5. 7.537..."
    Beat "Crash", 0, 0.5, 0.35, "x"

    ; Bars 5 to 8, from E minor to G minor: the build. Am7 loses its fifth and becomes the second degree of the new key.
    ;   Cmaj7 D   Em7 Am7   Am7b5   D7b9
    Line "Reed", 16, 0.5, 0.62, {{
        . . e5, g5 ~f#5 - . . | . . f#5, g5 ~a5 - . . | . . g5, a5 c6 - a5 - | ~eb6! - d6 - c6 - a5 - }}
    Line "Lead", 28, 0.5, 0.7, "c5, - a4 - f#4 - d5 f#5"
    Line "Bass", 16, 0.5, 0.66, "c2 c2, . c2, d2 d2, . d#2, | e2 . e2, g2, a1 a1, . g#1,"
    Line "Bass", 24, 0.5, 0.78, "a1 a1, a2, a1 a1 eb2 a2 eb2 | d2 d2 d3 d2 d2 d3 c3 d2"
    Figure "Pluck", 16, 0.25, 0.4, 2, "c4+e4+g4+b4 d4+f#4+a4 e4+g4+b4+d5 c4+e4+g4+a4", {{
        0 . . . 1 . . .  2 . . . 3 . . .  0 . . 1 . . 2 .  3 . . 2 . 4 . . }}
    Figure "Pluck", 24, 0.25, 0.52, 2, "a3+c4+eb4+g4 a3+c4+eb4+g4 c4+d4+f#4+a4 eb4+f#4+a4+c5", {{
        0! 1, 2, 3 1! 2, 3, 4  2! 3, 4, 5 3! 4, 5 6  0! 1, 2 3! 4, 3 2! 1  1! 2 3! 4 3! 4 5! 6! }}
    Line "Pad", 16, 2, 0.7, {{
        g3+b3+e4 a3+d4+f#4 | g3+b3+d4 g3+c4+e4 | g3+c4+eb4 a3+c4+g4 | a3+c4+f#4 c4+eb4+f#4 }}
    Line "Riser", 24, 1, 0.7, "c6 - - - - - - -"
    Beat "Kick", 16, 0.5, 0.8, "x....... x....... x.x.x.x. x.x.x.x."
    Beat "Snare", 16, 0.25, 0.8, "2...3...2...3... 2...3...3...3.3. 2.3.2.3.3.4.3.4. 3434454556567789"
    Beat "Hat", 16, 0.25, 0.55, "..5...5...5...5. ..5...5...5...5. 5.5.5.5.5.5.5.5. 7.5.7.5.7.5.7..."

    ; Bars 9 to 12, G minor: the climax, the hook a minor third higher for a solo guitar, with the lead above it.
    ;   Gm Bb/F   Eb F   Gm7 Bb/D   Cm9 F9
    Line "Solo", 32, 0.5, 0.8, {{
        g5! - - a5 ~bb5 - . d5, | bb5! - a5 g5, - f5 . . | d5, - g5! - a5 ~bb5 - c6 | ~d6! - - c6, . ~eb6 - . }}
    Line "Lead", 32, 0.5, 0.56, {{
        bb4! - - d5 d5 - . bb4, | eb5 - d5 c5, - a4 f5, c6 | bb4! - d5 - f5 - d5, - | ~g5! - eb5 - . a5, c6 - }}
    Line "Brass", 32, 0.5, 0.6, {{
        g4+bb4+d5! - . . f4+bb4+d5! . f4+bb4+d5 . | g4+bb4+eb5! - . g4+bb4+eb5 f4+a4+c5! - f4+a4+c5 -
        f4+bb4+d5! . f4+bb4+d5 - f4+bb4+d5! - . bb4+d5+f5 | g4+bb4+eb5! - . bb4+d5+eb5 a4+eb5+g5! . a4+eb5+g5 . }}
    Line "Guitar", 32, 0.5, 0.42, {{
        g2! - g2, g2 f2! - f2, f2 | eb2! - - eb2 f2! - f2 a2
        g2! - - f2 bb1! - - d2, | c3! - c3, . f2! - f2 a2, }}
    Line "Bass", 32, 0.5, 0.88, {{
        g2! g1 g2 g1 f2! . f2 f1 | eb2! . eb2 bb1 f2! f1 - a1
        g2! g1 . f2 d2! d2 bb1 d2 | c2! c3 c2 . f1! - c2 a1 }}
    Figure "Pluck", 32, 0.25, 0.44, 2, {{
        g4+bb4+d5 f4+bb4+d5 eb4+g4+bb4 f4+a4+c5
        g4+bb4+d5 f4+bb4+d5 eb4+g4+bb4+d5 eb4+f4+a4+c5 }}, {{
        0! 1, 2 3 2 . 2, 0  1! 2, 3 4 3 . 1, 2  3! 2 . 0, 1 2 . 2  4! 3 . 3, 2 1 . 1
        2! 1, 0 1 2, 3 4! 3  0 2! 1, 3 2 4! 3, 5  3! . 2 1 . 0 1, .  5! 4 3, 2 1, 2 3 4! }}
    Beat "Kick", 32, 0.25, 0.95, "X.x.X...X.x.X... X.x.X..xX.x.X... X..xX..xX.x.X..x X.x.X..xX...X.x."
    Beat "Snare", 32, 0.25, 0.95, "....X..2....X..2 ....X..2.2..X..3 ....X.2..2..X..2 ....X..2....X568"
    Beat "OpenHat", 32, 0.5, 0.85, ".9.9.9.9 .9.9.9.9 .9.9.9.9 .9.9.9.."
    Beat "Ride", 32, 0.5, 0.6, "9.9.9.9. 9.9.9.9. 9.979.97 9.9.9..."
    Beat "Crash", 32, 0.5, 0.9, "X"

    ; Bars 13 to 16, from G minor to G major and home to E minor.
    ;   Bb Ebmaj7   Cm7 D7   Gmaj7 Am7   F#m7b5 B7
    Line "Solo", 48, 0.5, 0.78, {{
        d6! - - bb5 ~g5 - . bb5, | ~c6 - eb6! - ~d6 - . a5, | ~b5! - - d6 - - c6, b5 | ~a5 - - - . . b4, d#5 }}
    Line "Lead", 56, 0.5, 0.6, "f#5! - - b5 a5 - e5 - | c5 - e5 - . . . ."
    Line "Bell", 56, 0.5, 0.42, ". d6 . g6 . e6 . a6 | . . f#6 . d#6 . . ."
    Line "Brass", 48, 0.5, 0.5, {{
        f4+bb4+d5! - . . g4+bb4+d5! - . . | g4+bb4+eb5! - - . f#4+a4+c5! - c5+eb5+f#5 -
        d5+f#5+b5! - - - . . . . | . . . . . . . . }}
    Line "Bass", 48, 0.5, 0.86, {{
        bb1! . bb2 f2 eb2! . eb3 bb1 | c2! c3 . c2 d2! d3 - f#2
        g2! . d2 g2 a1 . e2 g2 | f#2! . c3 f#2, b1! . b2 d#2 }}
    Figure "Pluck", 48, 0.25, 0.48, 2, {{
        d4+f4+bb4 d4+g4+bb4 c4+eb4+g4+bb4 c4+d4+f#4+a4
        b3+d4+f#4+g4 c4+e4+g4+a4 c4+e4+f#4+a4 b3+d#4+f#4+a4 }}, {{
        0! . 1, . 2! . 3, .  4! . 3, . 2 . 1, .  0! 1, 2 3 4! 5 4, 3  2! 3, 4 5 6! 5 4, 3
        0! 1, 3 2 4! 3, 5 4  6! 5, 4 3 5! 4, 3 2,  0! . . 1, . . 2 .  3! . 4, . 5 . . . }}
    Line "Pad", 32, 2, 0.86, {{
        g3+bb3+d4 bb3+d4+f4 | g3+bb3+eb4 a3+c4+f4 | g3+bb3+f4 bb3+d4+f4 | g3+c4+eb4 a3+eb4+g4
        bb3+d4+f4 bb3+d4+g4 | g3+bb3+eb4 a3+c4+f#4 | b3+d4+f#4 g3+c4+e4 | a3+c4+e4 a3+b3+d#4 }}
    Beat "Kick", 48, 0.25, 0.92, "X..x..X.X..x..X. X..x..X.X..x..X. X...X...X...X... X...X...X......."
    Beat "Snare", 48, 0.25, 0.9, "....X..2....X..2 ....X..2.2..X.55 ....X..2....X... ....X.4.7.78X.X."
    Beat "Hat", 48, 0.25, 0.75, "9.5.9.5.9.5.9.5. 9.5.9.559.5.9.5. 9.3.5.3.9.3.5.3. 9.3.5..........."
    Beat "OpenHat", 48, 0.5, 0.7, ".......8 ........ .9.9.9.9 .9......"
    Beat "HighTom", 60, 0.25, 0.8, ".... ...9 .... ...."
    Beat "LowTom", 60, 0.25, 0.8, ".... .... .... .9.7"
    Beat "Crash", 48, 0.5, 0.75, "x....... ........ X"
endin
</CsInstruments>
<CsScore>
; length of three files, bars, beats of a bar, level, room, push, width
i "Conductor" 0 [3 * 26] 16 4 0.72 0.5 0.45 0.8
</CsScore>
</CsoundSynthesizer>
