; How the scores are written: words of text on a grid of steps.
;
;   Line       notes of one voice or of chords: "e5 - f#5 . | e4+g4+b4 - - -"
;              a note is a letter, perhaps "#", and an octave; "+" joins notes to a chord; "-" holds on for another
;              step, "." is a rest; "|" and line ends are for the eye only
;   Figure     the same, but a second text gives one chord for each "every" beats, and the line picks its notes by
;              number: "0 . 1 2" with the chord "e2+b2" plays e2, a rest, b2, and e3, an octave above the first;
;              notes between the beats are a little softer
;   Beat       drums: "X.x.o..." with X loud, x normal, o soft and . for nothing
;
; All of them take the name of an instrument, the beat at which they start, and the length of a step in beats.

giBeat = 6.5 / 16 ; seconds: sixteen beats make the unit of 6.5 seconds of which every piece is a multiple
; A piece's first beat comes this much into its file. A change of music is noticed a moment after the old piece has
; begun again, and in this moment the old first beat must not sound.
giUpbeat = 0.05
giSemitones[] fillarray 9, 11, 0, 2, 4, 5, 7 ; of a, b, c, d, e, f, g above c

; The number of the instrument of that name. Csound would silently leave out the notes of one that does not exist.
opcode PlayerOf, i, S
    Sname xin
    iNumber nstrnum Sname
    if iNumber < 1 then
        prints "There is no instrument %s.\n", Sname
        exitnow 1
    endif
    xout iNumber
endop

; The word of a text at or behind a position, and the position behind it. At the end of the text the word is empty.
opcode NextWord, Si, Si
    Stext, iFrom xin
    iLength strlen Stext
    while iFrom < iLength && (strchar(Stext, iFrom) <= 32 || strchar(Stext, iFrom) == 124) do
        iFrom += 1
    od
    iTo = iFrom
    while iTo < iLength && strchar(Stext, iTo) > 32 && strchar(Stext, iTo) != 124 do
        iTo += 1
    od
    Sword strsub Stext, iFrom, iTo
    xout Sword, iTo
endop

; The note that begins at a position of a word as a MIDI number, and the position of the next note.
opcode NextNote, ii, Si
    Sword, iAt xin
    iKey = giSemitones[strchar(Sword, iAt) - 97]
    if strchar(Sword, iAt + 1) == 35 then
        iKey += 1
        iAt += 1
    endif
    xout iKey + 12 * (strchar(Sword, iAt + 1) - 47), iAt + 3
endop

; Plays all notes of a word.
opcode Sound, 0, iSiii
    iInstrument, Sword, iBeat, iBeats, iVelocity xin
    iLength strlen Sword
    iAt = 0
    while iAt < iLength do
        iKey, iAt NextNote Sword, iAt
        schedule iInstrument, giUpbeat + iBeat * giBeat, iBeats * giBeat, cpsmidinn(iKey), iVelocity
    od
endop

opcode Line, 0, SiiiS
    Sinstrument, iBeat, iStep, iVelocity, Stext xin
    iInstrument PlayerOf Sinstrument
    iAt = 0
    iSince = iBeat
    Sheld = "."
    Sword = "."
    while strlen(Sword) > 0 do
        Sword, iAt NextWord Stext, iAt
        if strcmp(Sword, "-") != 0 then
            if strcmp(Sheld, ".") != 0 then
                Sound iInstrument, Sheld, iSince, iBeat - iSince, iVelocity
            endif
            Sheld strcpy Sword
            iSince = iBeat
        endif
        iBeat += iStep
    od
endop

; The MIDI number of a chord's note; numbers beyond its last note go on an octave higher.
opcode NoteOfChord, i, Si
    Schord, iNumber xin
    iKeys[] init 8
    iCount = 0
    iAt = 0
    while iAt < strlen(Schord) do
        iKey, iAt NextNote Schord, iAt
        iKeys[iCount] = iKey
        iCount += 1
    od
    xout iKeys[iNumber % iCount] + 12 * int(iNumber / iCount)
endop

opcode Figure, 0, SiiiiSS
    Sinstrument, iBeat, iStep, iVelocity, iEvery, Schords, Spattern xin
    iInstrument PlayerOf Sinstrument
    iChordAt = 0
    iNoteAt = 0
    iNow = 0
    iChordEnd = 0
    Schord, iChordAt NextWord Schords, iChordAt
    while strlen(Schord) > 0 do
        iChordEnd += iEvery
        while iNow < iChordEnd - 0.001 do
            Snote, iNoteAt NextWord Spattern, iNoteAt
            if strlen(Snote) == 0 then ; the pattern begins again
                Snote, iNoteAt NextWord Spattern, 0
            endif
            if strcmp(Snote, ".") != 0 then
                iAccent = (abs(iNow - round(iNow)) < 0.01 ? 1 : 0.8)
                schedule iInstrument, giUpbeat + (iBeat + iNow) * giBeat, iStep * giBeat, \
                    cpsmidinn(NoteOfChord(Schord, strtod(Snote))), iVelocity * iAccent
            endif
            iNow += iStep
        od
        Schord, iChordAt NextWord Schords, iChordAt
    od
endop

opcode Beat, 0, SiiiS
    Sdrum, iBeat, iStep, iVelocity, Stext xin
    iDrum PlayerOf Sdrum
    iAt = 0
    while iAt < strlen(Stext) do
        iSign strchar Stext, iAt
        iLoudness = (iSign == 88 ? 1 : (iSign == 120 ? 0.7 : (iSign == 111 ? 0.4 : 0)))
        if iLoudness > 0 then
            schedule iDrum, giUpbeat + iBeat * giBeat, 0.1, iVelocity * iLoudness
        endif
        if iSign > 32 && iSign != 124 then
            iBeat += iStep
        endif
        iAt += 1
    od
endop
