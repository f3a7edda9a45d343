// Sine and powers of two by plain arithmetic, so that the sounds come out the same with every math library.
#pragma once

// The sine of an angle given in turns (1 is a full circle); right to about 1e-11.
double sineOfTurns(double turns);

// The cosine, likewise.
double cosineOfTurns(double turns);

// 2 to the power of x, for x in [-1000, 1000]; right to about 1e-15 of the result.
double twoToThe(double x);

// The factor of amplitude that a difference in decibels stands for.
double amplitudeOf(double decibels);

// Frequency in hertz of a key counted in semitones as MIDI does (69 is the A of 440 Hz); fractions lie
// between.
double frequencyOf(double key);

// The factor by which a sample is multiplied so that the sound falls by 60 decibels in the given seconds.
double decayFactor(double secondsTo60dB, int rate);
