; The players. Notes bring their frequency in p4, their velocity in p5 and the frequency from which they slide in p6,
; drums their velocity in p4. Nothing here rolls dice that differ from one rendering to the next.

; The pitch of a voice: a slide from the note before takes 50 ms, and a vibrato of 22 cents comes late.
opcode Pitch, k, iiiii
    iTo, iFrom, iLate, iRise, iRate xin
    kSlide expseg iFrom, 0.05, iTo, 1, iTo
    kVibrato linseg 0, iLate, 0, iRise, 1
    kBend lfo 0.0128, iRate
    xout kSlide * (1 + kVibrato * kBend)
endop

; Puts a sound on the mixing desk: left, right, and the shares that go to the echo and to the room.
opcode Mix, 0, aaii
    aLeft, aRight, iEcho, iRoom xin
    gaLeft += aLeft
    gaRight += aRight
    gaEchoLeft += aLeft * iEcho
    gaEchoRight += aRight * iEcho
    gaRoomLeft += aLeft * iRoom
    gaRoomRight += aRight * iRoom
endop

; The same for drums, which the kick does not push down.
opcode MixDrum, 0, aai
    aLeft, aRight, iRoom xin
    gaDrumLeft += aLeft
    gaDrumRight += aRight
    gaRoomLeft += aLeft * iRoom
    gaRoomRight += aRight * iRoom
endop

; ---------------------------------------------------------------- basses

; Round electric bass with a little growl in the attack.
instr Bass
    iTop = 8 + 8 * p5
    aEnvelope linsegr 0, 0.004, 1, 0.12, 0.75, 0.05, 0
    kOpen expseg iTop, 0.18, 4.5, 1, 3
    aSaw vco2 0.45, p4 * 1.0015
    aSquare vco2 0.25, p4 * 0.9985, 10
    aLow poscil 0.3, p4
    aSound moogladder aSaw + aSquare, limit(p4 * kOpen, 60, 5000), 0.15
    aSound buthp aSound * 1.5 + aLow, 45
    aSound = tanh(aSound * aEnvelope * 1.4) * 0.24 * p5
    Mix aSound, aSound, 0, 0
endin

; Soft bass for the calm pieces: hardly more than its fundamental.
instr SoftBass
    aEnvelope linsegr 0, 0.03, 1, 0.5, 0.7, 0.25, 0
    aLow poscil 0.55, p4
    aTone poscil 0.32, p4 * 2
    aThird poscil 0.12, p4 * 3
    aSound = (aLow + aTone * aEnvelope + aThird * aEnvelope) * aEnvelope * 0.27 * p5
    Mix aSound, aSound, 0, 0.02
endin

; ---------------------------------------------------------------- voices

; Singing lead of two saws and a pulse, spread a little, with a vibrato that comes late.
instr Lead
    kPitch Pitch p4, p6, 0.24, 0.3, 5.6
    aEnvelope linsegr 0, 0.01, 1, 0.15, 0.74, 0.12, 0
    kOpen linseg 3000 + 4200 * p5, 0.25, 2200 + 2200 * p5, 2, 2600
    aLeft vco2 0.5, kPitch * 1.0035
    aRight vco2 0.5, kPitch * 0.9965, 0, 0.5, 0.37
    aMiddle vco2 0.3, kPitch, 2, 0.34, 0.2
    aLeft moogladder aLeft + aMiddle, kOpen + p4, 0.12
    aRight moogladder aRight + aMiddle, kOpen + p4, 0.12
    aLeft = aLeft * aEnvelope * 0.5 * p5
    aRight = aRight * aEnvelope * 0.5 * p5
    Mix aLeft, aRight, 0.28, 0.16
endin

; Reed: a narrow pulse with a nose, for second voices and answers.
instr Reed
    kPitch Pitch p4, p6, 0.26, 0.35, 5.2
    aEnvelope linsegr 0, 0.018, 1, 0.2, 0.8, 0.1, 0
    aLeft vco2 0.5, kPitch * 1.002, 2, 0.24
    aRight vco2 0.5, kPitch * 0.998, 2, 0.27, 0.4
    kOpen linseg 1800 + 2600 * p5, 0.4, 2600
    aLeft butlp aLeft, kOpen
    aRight butlp aRight, kOpen
    aLeft pareq aLeft, 1300, 1.5, 1.2
    aRight pareq aRight, 1300, 1.5, 1.2
    Mix aLeft * aEnvelope * 0.42 * p5, aRight * aEnvelope * 0.42 * p5, 0.2, 0.2
endin

; Solo guitar that sings at the edge of feedback.
instr Solo
    kPitch Pitch p4, p6, 0.2, 0.25, 5.9
    aEnvelope linsegr 0, 0.006, 1, 0.3, 0.85, 0.1, 0
    aString vco2 0.4, kPitch
    aOther vco2 0.22, kPitch * 1.004, 0, 0.5, 0.3
    aDriven = tanh((aString + aOther) * 3.2)
    aDriven butlp aDriven, 5200
    aDriven pareq aDriven, 900, 0.8, 0.8
    aDriven pareq aDriven, 2600, 1.4, 1
    aLate delay aDriven * aEnvelope, 0.011
    aSound = aDriven * aEnvelope * 0.36 * p5
    Mix aSound + aLate * 0.07 * p5, aSound - aLate * 0.07 * p5, 0.3, 0.2
endin

; Flute of glass: a sine with a breath at its start.
instr Flute
    kPitch Pitch p4, p6, 0.4, 0.6, 4.9
    aEnvelope linsegr 0, 0.07, 1, 0.4, 0.8, 0.3, 0
    aBreath rand 0.5, 0.41, 1
    aBreath butbp aBreath, p4 * 2, p4 * 0.5
    aPuff expseg 1, 0.2, 0.12, 2, 0.06
    aLeft poscil 0.6, kPitch * 1.0012
    aRight poscil 0.6, kPitch * 0.9988
    aSecond poscil 0.15, kPitch * 2
    aThird poscil 0.07, kPitch * 3
    aColour = (aSecond + aThird) * aEnvelope + aBreath * aPuff * 0.5
    Mix (aLeft + aColour) * aEnvelope * 0.3 * p5, (aRight + aColour) * aEnvelope * 0.3 * p5, 0.2, 0.32
endin

; A wordless choir of soft triangles: the voice above the water.
instr Voice
    kPitch Pitch p4, p6, 0.45, 0.6, 4.6
    aEnvelope linsegr 0, 0.11, 1, 0.6, 0.85, 0.35, 0
    kOpen linseg 1500, 0.3, 3200, 1.5, 2200
    aLeft vco2 0.4, kPitch * 1.0028, 12
    aRight vco2 0.4, kPitch * 0.9972, 12, 0.5, 0.3
    aMiddle vco2 0.13, kPitch, 0, 0.5, 0.6
    aLeft butlp (aLeft + aMiddle) * aEnvelope, kOpen
    aRight butlp (aRight + aMiddle) * aEnvelope, kOpen
    Mix aLeft * 0.36 * p5, aRight * 0.36 * p5, 0.32, 0.42
endin

; Electric piano: a soft tone and the tine that rings above it.
instr Piano
    iSide = 0.12 * sin(octcps(p4) * 24)
    aEnvelope linsegr 0, 0.004, 1, 1.2, 0.35, 3, 0.1, 0.35, 0
    kIndex expseg 1.5 * p5 + 0.3, 0.5, 0.35, 3, 0.1
    aTone foscil 0.5, p4, 1, 1, kIndex
    kTine expseg 0.9 * p5, 0.09, 0.06, 1, 0.002
    aTine foscil 0.16, p4, 1, 13.98, kTine
    aSound = (aTone + aTine) * aEnvelope * 0.36 * p5
    Mix aSound * (1 - iSide), aSound * (1 + iSide), 0.12, 0.22
endin

; Small bright bell.
instr Bell
    aEnvelope expsegr 1, 1.1, 0.02, 2, 0.001, 0.4, 0.001
    kIndex expseg 2.2, 0.35, 0.5, 2, 0.1
    aLow foscil 0.5, p4, 1, 3.5, kIndex
    aHigh foscil 0.5, p4 * 1.002, 1, 3.49, kIndex
    Mix aLow * aEnvelope * 0.36 * p5, aHigh * aEnvelope * 0.36 * p5, 0.35, 0.3
endin

; Plucked string for figures in fast notes; neighbours on the scale sit on different sides.
instr Pluck
    iSide = 0.32 * sin(octcps(p4) * 24)
    aEnvelope expsegr 1, 0.32, 0.05, 0.5, 0.002, 0.08, 0.001
    kOpen expseg 5200 * p5 + 900, 0.12, 900, 0.4, 420
    aSaw vco2 0.5, p4 * 1.002
    aSquare vco2 0.35, p4 * 0.998, 2, 0.3
    aSound moogladder aSaw + aSquare, kOpen + p4 * 0.5, 0.22
    aSound buthp aSound * aEnvelope * 0.46 * p5, 180
    Mix aSound * (1 - iSide), aSound * (1 + iSide), 0.26, 0.14
endin

; Harp for the water: a round pluck without edge.
instr Harp
    iSide = 0.3 * sin(octcps(p4) * 24)
    aEnvelope expsegr 1, 0.9, 0.06, 1.2, 0.002, 0.5, 0.001
    kIndex expseg 1.9 * p5 + 0.2, 0.12, 0.5, 1, 0.05
    aTone foscil 0.5, p4, 1, 2, kIndex
    aBody foscil 0.4, p4, 1, 1, kIndex * 0.6
    aAttack linseg 0, 0.003, 1, 1, 1
    aSound buthp (aTone + aBody) * aEnvelope * aAttack * 0.3 * p5, 160
    Mix aSound * (1 - iSide), aSound * (1 + iSide), 0.3, 0.34
endin

; Wide strings under everything; cut off below, where the bass is, and mild above.
instr Pad
    aEnvelope linsegr 0, 0.45, 1, 3, 0.85, 0.5, 0
    kOpen linseg 1300, 1.2, 2600, 2.5, 1700
    aLeft vco2 0.3, p4 * 1.0042
    aFarLeft vco2 0.3, p4 * 0.9982, 0, 0.5, 0.31
    aRight vco2 0.3, p4 * 0.9957, 0, 0.5, 0.62
    aFarRight vco2 0.3, p4 * 1.0019, 0, 0.5, 0.83
    aLeft butlp aLeft + aFarLeft, kOpen
    aRight butlp aRight + aFarRight, kOpen
    aLeft buthp aLeft * aEnvelope * 0.2 * p5, 230
    aRight buthp aRight * aEnvelope * 0.2 * p5, 230
    Mix aLeft, aRight, 0, 0.35
endin

; Short bright chords.
instr Brass
    aEnvelope linsegr 0, 0.015, 1, 0.12, 0.6, 0.09, 0
    kOpen expseg 700, 0.05, 3800 * p5 + 800, 0.35, 1100
    aLeft vco2 0.4, p4 * 1.004
    aRight vco2 0.4, p4 * 0.996, 0, 0.5, 0.4
    aLeft moogladder aLeft, kOpen, 0.1
    aRight moogladder aRight, kOpen, 0.1
    aLeft buthp aLeft * aEnvelope * 0.85 * p5, 200
    aRight buthp aRight * aEnvelope * 0.85 * p5, 200
    Mix aLeft, aRight, 0.1, 0.2
endin

; Overdriven guitar: root, fifth and octave through the same amplifier, once on each side.
opcode Amplifier, a, a
    aString xin
    aString buthp aString, 110
    aDriven = tanh(aString * 5)
    aCabinet butlp aDriven, 3800
    aCabinet butlp aCabinet, 4600
    aCabinet pareq aCabinet, 420, 0.8, 0.9
    xout aCabinet
endop

instr Guitar
    aEnvelope linsegr 0, 0.004, 1, 0.08, 0.85, 0.04, 0
    aDamp expseg 1, 0.2, 0.75, 1, 0.6
    aRoot vco2 0.32, p4 * 1.001
    aFifth vco2 0.26, p4 * 1.4985, 0, 0.5, 0.3
    aOctave vco2 0.2, p4 * 2.003, 0, 0.5, 0.7
    aOther vco2 0.32, p4 * 0.9975, 0, 0.5, 0.45
    aOtherFifth vco2 0.26, p4 * 1.5025, 0, 0.5, 0.15
    aLeft Amplifier (aRoot + aFifth + aOctave) * aDamp * aEnvelope
    aRight Amplifier (aOther + aOtherFifth + aOctave) * aDamp * aEnvelope
    aLoudness = aEnvelope * 0.33 * p5
    Mix (aLeft * 0.85 + aRight * 0.15) * aLoudness, (aRight * 0.85 + aLeft * 0.15) * aLoudness, 0, 0.08
endin

; ---------------------------------------------------------------- drums

instr Kick
    p3 = 0.32
    kPitch expseg 190, 0.025, 74, 0.09, 50, 0.25, 45
    aEnvelope linseg 0, 0.0015, 1, 0.1, 0.62, 0.2, 0
    aBody poscil 0.85, kPitch
    aClick rand 0.5, 0.23, 1
    aClick butbp aClick, 3200, 2600
    aTick expseg 1, 0.012, 0.01, 1, 0.001
    aSound = (tanh(aBody * 1.5) * 0.75 + aClick * aTick * 0.5) * aEnvelope * 0.52 * p4
    MixDrum aSound, aSound, 0.02
    aPush linseg 0, 0.004, 1, 0.05, 0.8, 0.2, 0
    gaPush += aPush * p4
endin

; The heartbeat of the calm pieces.
instr SoftKick
    p3 = 0.4
    kPitch expseg 95, 0.05, 58, 0.3, 48
    aEnvelope linseg 0, 0.006, 1, 0.12, 0.5, 0.26, 0
    aBody poscil 0.28, kPitch
    aSound = aBody * aEnvelope * p4
    MixDrum aSound, aSound, 0.03
endin

instr Snare
    p3 = 0.3
    aNoise rand 1, 0.61, 1
    aOther rand 1, 0.17, 1
    aSnap expseg 1, 0.06, 0.4, 0.14, 0.02, 0.1, 0.001
    aShell expseg 1, 0.1, 0.05, 0.2, 0.001
    kPitch expseg 260, 0.03, 198, 0.27, 185
    aTone poscil 0.5, kPitch
    aLeft butbp aNoise, 4200, 5200
    aRight butbp aOther, 4200, 5200
    aMiddle buthp aNoise, 1500
    aTail linseg 1, 0.25, 1, 0.05, 0
    aLeft = ((aLeft * 0.3 + aMiddle * 0.22) * aSnap + aTone * aShell) * aTail * 0.86 * p4
    aRight = ((aRight * 0.3 + aMiddle * 0.22) * aSnap + aTone * aShell) * aTail * 0.86 * p4
    MixDrum aLeft, aRight, 0.16
endin

instr Clap
    p3 = 0.28
    aNoise rand 1, 0.83, 1
    aOther rand 1, 0.29, 1
    aBursts linseg 0, 0.001, 1, 0.009, 0.15, 0.001, 0.9, 0.009, 0.15, 0.001, 1, 0.06, 0.3, 0.14, 0
    aLeft butbp aNoise, 1900, 1700
    aRight butbp aOther, 1900, 1700
    MixDrum aLeft * aBursts * 0.66 * p4, aRight * aBursts * 0.66 * p4, 0.22
endin

; Click of stick on rim, for half-time beats.
instr Rim
    p3 = 0.12
    aTone poscil 0.4, 1720
    aLow poscil 0.4, 840
    aEnvelope expseg 1, 0.03, 0.1, 0.08, 0.001
    aSound = (aTone + aLow) * aEnvelope * 0.62 * p4
    MixDrum aSound, aSound, 0.35
endin

instr Hat
    p3 = 0.09
    aNoise rand 1, 0.37, 1
    aOther rand 1, 0.71, 1
    aEnvelope expseg 1, 0.035, 0.1, 0.05, 0.002
    aLeft buthp aNoise, 8200
    aRight buthp aOther, 8200
    aLoudness = aEnvelope * 0.36 * p4
    MixDrum (aLeft * 0.8 + aRight * 0.35) * aLoudness, (aRight * 0.8 + aLeft * 0.35) * aLoudness, 0.05
endin

instr OpenHat
    p3 = 0.3
    aNoise rand 1, 0.37, 1
    aOther rand 1, 0.71, 1
    aEnvelope expseg 1, 0.2, 0.2, 0.1, 0.002
    aLeft buthp aNoise, 7400
    aRight buthp aOther, 7400
    aLoudness = aEnvelope * 0.23 * p4
    MixDrum (aLeft * 0.8 + aRight * 0.35) * aLoudness, (aRight * 0.8 + aLeft * 0.35) * aLoudness, 0.08
endin

; Soft swish.
instr Shaker
    p3 = 0.14
    aNoise rand 1, 0.53, 1
    aOther rand 1, 0.13, 1
    aEnvelope linseg 0, 0.03, 1, 0.03, 0.4, 0.08, 0
    aLeft butbp aNoise, 7000, 4500
    aRight butbp aOther, 7000, 4500
    MixDrum aLeft * aEnvelope * 0.2 * p4, aRight * aEnvelope * 0.2 * p4, 0.1
endin

instr Crash
    p3 = 1.9
    aNoise rand 1, 0.19, 1
    aOther rand 1, 0.67, 1
    aEnvelope expseg 0.05, 0.004, 1, 0.35, 0.3, 1.5, 0.001
    aLeft buthp aNoise, 5200
    aRight buthp aOther, 5200
    MixDrum aLeft * aEnvelope * 0.17 * p4, aRight * aEnvelope * 0.17 * p4, 0.15
endin

; Ride cymbal: bells of metal that do not agree, and a little hiss.
instr Ride
    p3 = 0.55
    aLow vco2 0.2, 417, 10
    aMiddle vco2 0.2, 563, 10
    aHigh vco2 0.2, 787, 10
    aMetal buthp aLow * aMiddle * 6 + aHigh * aMiddle * 6, 5200
    aNoise rand 0.4, 0.43, 1
    aNoise buthp aNoise, 9000
    aPing expseg 1, 0.06, 0.35, 0.49, 0.004
    aSound = (aMetal * 0.8 + aNoise * 0.3) * aPing * 0.36 * p4
    MixDrum aSound * 0.75, aSound, 0.1
endin

; Wind that rises as long as its note lasts, towards its pitch.
instr Riser
    aNoise rand 0.7, 0.57, 1
    aOther rand 0.7, 0.11, 1
    kCentre expseg p4 * 0.25, p3, p4 * 2
    aLeft butbp aNoise, kCentre, kCentre * 0.7
    aRight butbp aOther, kCentre, kCentre * 0.7
    aSwell expseg 0.02, p3, 1
    aTail linseg 1, p3 - 0.03, 1, 0.03, 0
    aLoudness = aSwell * aTail * 0.3 * p5
    Mix (aLeft * 0.8 + aRight * 0.4) * aLoudness, (aRight * 0.8 + aLeft * 0.4) * aLoudness, 0, 0.3
endin

; Toms from high to low.
opcode Drum, 0, ii
    iPitch, iVelocity xin
    kPitch expseg iPitch * 1.5, 0.04, iPitch, 0.3, iPitch * 0.9
    aEnvelope linseg 0, 0.002, 1, 0.12, 0.45, 0.2, 0
    aBody poscil 0.5, kPitch
    aSkin rand 0.3, 0.47, 1
    aSkin butbp aSkin, 1500, 1500
    aTick expseg 1, 0.03, 0.02, 1, 0.001
    aSound = (tanh(aBody * 1.6) + aSkin * aTick) * aEnvelope * 0.5 * iVelocity
    MixDrum aSound, aSound, 0.15
endop

instr HighTom
    p3 = 0.34
    Drum 165, p4
endin

instr LowTom
    p3 = 0.34
    Drum 98, p4
endin
