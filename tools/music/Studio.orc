; The mixing desk and the tape, for every piece. A piece is its score, instr Piece, and one line that starts it:
;   i "Conductor" 0 <length of all three passes> <level> <room> <push>
; level is the gain that brings the piece to the loudness that all pieces share (-19 LUFS; the tests of the music show
; where it is), room is how much of the room's answer is heard, and push is how far the kick pushes the other players
; down, 0 to 1.
sr = 44100
ksmps = 10 ; a divisor of the 286650 frames of a unit, so that each pass begins on the same frame
nchnls = 2
0dbfs = 1

gaLeft, gaRight, gaDrumLeft, gaDrumRight, gaEchoLeft, gaEchoRight, gaRoomLeft, gaRoomRight, gaPush init 0

#include "Score.orc"
#include "Instruments.orc"

; Plays the piece three times in a row and records the third, so that what rings on from its end is in its beginning.
instr Conductor
    iPass = p3 / 3
    schedule "Piece", 0, iPass
    schedule "Piece", iPass, iPass
    schedule "Piece", 2 * iPass, iPass
    schedule "Desk", 0, p3, p4, p5, p6
    schedule "Tape", 2 * iPass, iPass
endin

; Echoes of three quarters of a beat that change sides.
opcode Echo, aa, aa
    aLeft, aRight xin
    aBackLeft init 0
    aBackRight init 0
    aGoneLeft delay aLeft + aBackRight * 0.42, 0.75 * giBeat
    aGoneRight delay aRight + aBackLeft * 0.42, 0.75 * giBeat
    aBackLeft butlp aGoneLeft, 3600
    aBackRight butlp aGoneRight, 3600
    xout aBackLeft, aBackRight
endop

; Lightens what the sounds of the game need: a broad dip around the shots and signals, less of the low middle where
; hits and explosions are. The lowest octave steps back a little as well, so that nothing booms.
opcode Equalise, a, a
    aSound xin
    aSound buthp aSound, 32
    aSound pareq aSound, 90, 0.78, 0.7, 1
    aSound pareq aSound, 260, 0.84, 0.7
    aSound pareq aSound, 1250, 0.76, 0.6
    aSound pareq aSound, 9000, 1.12, 0.7, 2
    xout aSound
endop

; Straight up to half of full scale; what is above bends towards 0.72 and never passes it.
opcode Bend, a, a
    aSound xin
    aOver = abs(aSound) - 0.5
    aOver = (aOver + abs(aOver)) * 0.5
    aUnder limit aSound, -0.5, 0.5
    aSign = aUnder * 2
    xout aUnder + aSign * 0.22 * tanh(aOver / 0.22)
endop

instr Desk
    iLevel = p4
    iRoom = p5
    iPush = p6
    aEchoLeft, aEchoRight Echo gaEchoLeft, gaEchoRight
    aRoomLeft, aRoomRight reverbsc gaRoomLeft + aEchoLeft * 0.2, gaRoomRight + aEchoRight * 0.2, 0.78, 6500, sr, 0
    aRoomLeft buthp aRoomLeft, 240
    aRoomRight buthp aRoomRight, 240
    aGap = 1 - iPush * limit(gaPush, 0, 1)
    aLeft = (gaLeft + aEchoLeft) * aGap + gaDrumLeft + aRoomLeft * iRoom
    aRight = (gaRight + aEchoRight) * aGap + gaDrumRight + aRoomRight * iRoom
    aLeft Equalise aLeft
    aRight Equalise aRight
    gaMasterLeft Bend aLeft * iLevel
    gaMasterRight Bend aRight * iLevel
    clear gaLeft, gaRight, gaDrumLeft, gaDrumRight, gaEchoLeft, gaEchoRight, gaRoomLeft, gaRoomRight, gaPush
endin

; The tape dips around the place where it is cut. The piece itself comes round without a gap; but where another piece
; takes over, it does so a little behind the cut, and there both shall be quiet.
instr Tape
    aDip linseg 0.2, 0.025, 0.2, 0.02, 1, p3 - 0.105, 1, 0.06, 0.2
    fout "$TAPE", 8, gaMasterLeft * aDip, gaMasterRight * aDip
endin
