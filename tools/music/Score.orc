; How the scores are written: words of text on a grid of steps.
;
;   Line       notes of one voice or of chords: "e5 - ~f#5! . | e4+g4+b4, - - -"
;              a note is a letter, perhaps "#" or "b", and an octave; "+" joins notes to a chord; "-" holds on for
;              another step, "." is a rest; "|" and line ends are for the eye only. "!" behind a note makes it loud, ","
;              makes it soft; "~" before it lets its pitch slide over from the note before
;   Figure     the same, but a second text gives one chord for each "every" beats, and the line picks its notes by
;              number: "0! . 1, 2" with the chord "e2+b2" plays e2, a rest, b2, and e3, an octave above the first;
;              notes between the beats are a little softer, and "!" and "," tell as in a Line
;   Beat       drums: "X.x.o..." with X loud, x normal, o soft and . for nothing; 1 to 9 are finer steps up to X
;
; All of them take the name of an instrument, the beat at which they start, and the length of a step in beats. None
; may last beyond the end of its file: the other file would begin with what is too much.

giBeat init 0.5 ; seconds; the Conductor sets it
giFileBeats init 4 ; the length of a file; the Conductor sets it, too
; A file's first beat comes this much into it. A change of music is noticed a moment after the old file has begun again,
; and in this moment the old first beat must not sound. What the file before it held lasts until then.
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

; Stops everything if what an instrument plays up to that beat is more than the file holds.
opcode EndInside, 0, Si
    Sinstrument, iEnd xin
    if iEnd > giFileBeats + 0.001 then
        prints "%s plays up to beat %g, behind the file's end.\n", Sinstrument, iEnd
        exitnow 1
    endif
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
    iSign strchar Sword, iAt + 1
    if iSign == 35 || iSign == 98 then ; "#" or "b"
        iKey += (iSign == 35 ? 1 : -1)
        iAt += 1
    endif
    xout iKey + 12 * (strchar(Sword, iAt + 1) - 47), iAt + 3
endop

; A word without its mark, and what the mark does to the velocity.
opcode Unmarked, Si, S
    Sword xin
    iEnd strlen Sword
    iMark strchar Sword, iEnd - 1
    iAccent = 1
    if iMark == 33 || iMark == 44 then ; "!" or ","
        iAccent = (iMark == 33 ? 1.22 : 0.68)
        iEnd -= 1
    endif
    Snote strsub Sword, 0, iEnd
    xout Snote, iAccent
endop

; Plays all notes of a word, and gives the last of them. Before is the note that a slide comes from; at the start of a
; Line there is none.
opcode Sound, i, iSiiii
    iInstrument, Smarked, iBeat, iBeats, iVelocity, iBefore xin
    Sword, iAccent Unmarked Smarked
    iEnd strlen Sword
    iSlides = (strchar(Sword, 0) == 126 ? 1 : 0)
    if iSlides == 1 && iBefore < 0 then
        prints "There is no note that %s can slide from.\n", Sword
        exitnow 1
    endif
    iAt = iSlides
    while iAt < iEnd do
        iKey, iAt NextNote Sword, iAt
        iFrom = (iSlides == 1 ? iBefore : iKey)
        schedule iInstrument, giUpbeat + iBeat * giBeat, iBeats * giBeat, cpsmidinn(iKey), \
            iVelocity * iAccent, cpsmidinn(iFrom)
    od
    xout iKey
endop

opcode Line, 0, SiiiS
    Sinstrument, iBeat, iStep, iVelocity, Stext xin
    iInstrument PlayerOf Sinstrument
    iAt = 0
    iSince = iBeat
    iBefore = -1
    Sheld = "."
    Sword = "."
    while strlen(Sword) > 0 do
        Sword, iAt NextWord Stext, iAt
        if strcmp(Sword, "-") != 0 then
            if strcmp(Sheld, ".") != 0 then
                iBefore Sound iInstrument, Sheld, iSince, iBeat - iSince, iVelocity, iBefore
            endif
            Sheld strcpy Sword
            iSince = iBeat
        endif
        iBeat += iStep
    od
    EndInside Sinstrument, iBeat - iStep
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
            Smarked, iNoteAt NextWord Spattern, iNoteAt
            if strlen(Smarked) == 0 then ; the pattern begins again
                Smarked, iNoteAt NextWord Spattern, 0
            endif
            if strcmp(Smarked, ".") != 0 then
                Snote, iAccent Unmarked Smarked
                iAccent *= (abs(iNow - round(iNow)) < 0.01 ? 1 : 0.78)
                iPitch = cpsmidinn(NoteOfChord(Schord, strtod(Snote)))
                schedule iInstrument, giUpbeat + (iBeat + iNow) * giBeat, iStep * giBeat, iPitch, \
                    iVelocity * iAccent, iPitch
            endif
            iNow += iStep
        od
        Schord, iChordAt NextWord Schords, iChordAt
    od
    EndInside Sinstrument, iBeat + iChordEnd
endop

opcode Beat, 0, SiiiS
    Sdrum, iBeat, iStep, iVelocity, Stext xin
    iDrum PlayerOf Sdrum
    iAt = 0
    while iAt < strlen(Stext) do
        iSign strchar Stext, iAt
        iLoudness = (iSign == 88 ? 1 : (iSign == 120 ? 0.7 : (iSign == 111 ? 0.4 : 0)))
        if iSign >= 49 && iSign <= 57 then ; "1" to "9"
            iLoudness = (iSign - 48) / 9
        endif
        if iLoudness > 0 then
            schedule iDrum, giUpbeat + iBeat * giBeat, 0.1, iVelocity * iLoudness
        endif
        if iSign > 32 && iSign != 124 then
            iBeat += iStep
        endif
        iAt += 1
    od
    EndInside Sdrum, iBeat
endop
