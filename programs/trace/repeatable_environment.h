#pragma once

/// Makes a program give the same results on every machine: no window system, no scaling
/// of the user's, no theme, hashes without a random start. To be called before there is
/// an application object.
void prepareRepeatableEnvironment();

/// Gives the application the font that formatted texts take their defaults from, whatever
/// the system's is.
void fixFont();
