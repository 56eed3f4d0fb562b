; The mixing desk and the tape, for every piece. A piece is the music of one mode of the game and fills two files that
; are heard in turn: its score has instr First and instr Second, and one line that starts it:
;   i "Conductor" 0 <length of three files> <bars of a file> <beats of a bar> <level> <room> <push> <width>
; level is the gain that brings the piece to its loudness (the tests of the music show where it is), room is how much of
; the room's answer is heard, push is how far the kick pushes the other players down, 0 to 1, and width is how much of
; what differs between the sides is left.
sr = 44100
ksmps = 10 ; a divisor of the 286650 frames of 6.5 seconds, so that each file begins on a frame of its own
nchnls = 2
0dbfs = 1

gaLeft, gaRight, gaDrumLeft, gaDrumRight, gaEchoLeft, gaEchoRight, gaRoomLeft, gaRoomRight, gaPush init 0
giEcho init 0.75 ; beats from an echo to the next

#include "Score.orc"
#include "Instruments.orc"

; Plays the second file, the first and the second once more, and records the latter two: so that in the beginning of
; each is what rings on from the end of the other.
instr Conductor
    iFile = p3 / 3
    giFileBeats = p4 * p5
    giBeat = iFile / giFileBeats
    schedule "Second", 0, iFile
    schedule "First", iFile, iFile
    schedule "Second", 2 * iFile, iFile
    schedule "Desk", 0, p3, p6, p7, p8, p9
    schedule "Tape", iFile, iFile, 1
    schedule "Tape", 2 * iFile, iFile, 2
endin

; Echoes that change sides.
opcode Echo, aa, aa
    aLeft, aRight xin
    aBackLeft init 0
    aBackRight init 0
    aGoneLeft delay aLeft + aBackRight * 0.42, giEcho * giBeat
    aGoneRight delay aRight + aBackLeft * 0.42, giEcho * giBeat
    aBackLeft butlp aGoneLeft, 3600
    aBackRight butlp aGoneRight, 3600
    xout aBackLeft, aBackRight
endop

; Less of the low middle, where hits and explosions are, and some air above. The lowest octave steps back a little, so
; that nothing booms.
opcode Equalise, a, a
    aSound xin
    aSound buthp aSound, 32
    aSound pareq aSound, 100, 0.68, 0.7, 1
    aSound pareq aSound, 260, 0.84, 0.7
    aSound pareq aSound, 4500, 1.4, 0.7, 2
    xout aSound
endop

; Straight up to 0.36 of full scale; what is above bends towards 0.54 and never passes it.
opcode Bend, a, a
    aSound xin
    aOver = abs(aSound) - 0.36
    aOver = (aOver + abs(aOver)) * 0.5
    aUnder limit aSound, -0.36, 0.36
    aSign = aUnder / 0.36
    xout aUnder + aSign * 0.18 * tanh(aOver / 0.18)
endop

; Leaves a share of what differs between the sides, but not in the bass: two filters at 150 Hz leave little below 120.
opcode Narrow, aa, aai
    aLeft, aRight, iWidth xin
    aMiddle = (aLeft + aRight) * 0.5
    aSide buthp (aLeft - aRight) * 0.5, 150
    aSide buthp aSide * iWidth, 150
    xout aMiddle + aSide, aMiddle - aSide
endop

instr Desk
    iLevel = p4
    iRoom = p5
    iPush = p6
    iWidth = p7
    aEchoLeft, aEchoRight Echo gaEchoLeft, gaEchoRight
    aRoomLeft, aRoomRight reverbsc gaRoomLeft + aEchoLeft * 0.2, gaRoomRight + aEchoRight * 0.2, 0.78, 7500, sr, 0
    aRoomLeft buthp aRoomLeft, 240
    aRoomRight buthp aRoomRight, 240
    aGap = 1 - iPush * limit(gaPush, 0, 1)
    aLeft = (gaLeft + aEchoLeft) * aGap + gaDrumLeft + aRoomLeft * iRoom
    aRight = (gaRight + aEchoRight) * aGap + gaDrumRight + aRoomRight * iRoom
    aLeft, aRight Narrow aLeft, aRight, iWidth
    aLeft Equalise aLeft
    aRight Equalise aRight
    gaMasterLeft Bend aLeft * iLevel
    gaMasterRight Bend aRight * iLevel
    clear gaLeft, gaRight, gaDrumLeft, gaDrumRight, gaEchoLeft, gaEchoRight, gaRoomLeft, gaRoomRight, gaPush
endin

; The tape begins and ends with silence, but for no longer than a click takes to disappear: the file that follows may be
; another one than the one that was played behind it here.
instr Tape
    if p4 == 1 then
        Sfile = "$TAPE..wav"
    else
        Sfile = "$TAPE.B.wav"
    endif
    aEdge linseg 0, 0.004, 1, p3 - 0.012, 1, 0.008, 0
    fout Sfile, 8, gaMasterLeft * aEdge, gaMasterRight * aEdge
endin
