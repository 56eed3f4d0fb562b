<CsoundSynthesizer>
<CsInstruments>
; Invincible: G major, 4 bars of four in 6.5 seconds.
;   G  D  C  D
; The theme in major and in a hurry, lead and bells together, over plucked sixteenths and four kicks a bar.
#include "Studio.orc"

instr Piece
    Line "Lead", 0, 0.5, 0.75, {{
        d5 g5 . a5 b5 . a5 g5  | a5 - f#5 . a5 - d6 -  | e6 - d6 c6 - b5 g5 -  | a5 - b5 a5 - f#5 . . }}
    Line "Bell", 0, 0.5, 0.5, {{
        d6 g6 . a6 b6 . a6 g6  | a6 - f#6 . a6 - d6 -  | e6 - d6 c6 - b5 g5 -  | a5 - b5 a5 - f#5 . . }}

    Line "Brass", 0, 0.5, 0.6, {{
        g4+b4+d5 . . g4+b4+d5 . . g4+b4+d5 .      | f#4+a4+d5 . . f#4+a4+d5 . . f#4+a4+d5 .
        g4+c5+e5 . . g4+c5+e5 . . g4+c5+e5 .      | f#4+a4+d5 . f#4+a4+d5 . f#4+a4+d5 - . . }}

    Figure "Pluck", 0, 0.25, 0.6, 4, "g4+b4+d5 f#4+a4+d5 e4+g4+c5 f#4+a4+d5", {{
        0 1 2 3  4 3 2 1  0 1 2 3  5 4 3 2 }}

    Figure "Bass", 0, 0.5, 0.8, 4, "g2 f#2 c2", "0 1 0 1 0 1 0 1"
    Line "Bass", 12, 0.5, 0.8, "d2 d3 d2 d3 d2 d3 f#2 ."

    Beat "Kick", 0, 1, 0.9, "XXXX XXXX XXXX XXX."
    Beat "Clap", 0, 0.25, 0.85, "....X.......X... ....X.......X... ....X.......X... ....X.......X.x."
    Beat "Hat", 0, 0.25, 0.75, "xoxoxoxoxoxoxoxo xoxoxoxoxoxoxoxo xoxoxoxoxoxoxoxo xoxoxoxoxoxox..."
    Beat "OpenHat", 0, 0.5, 0.65, ".x.x.x.x .x.x.x.x .x.x.x.x .x.x.x.."
    Beat "Crash", 0, 0.5, 0.7, "X"
endin
</CsInstruments>
<CsScore>
; length of all passes, level, room, push
i "Conductor" 0 [3 * 6.5] 0.60 0.5 0.5
</CsScore>
</CsoundSynthesizer>
