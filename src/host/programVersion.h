// The program's name and version, as the log and the settings sheet show them.
#pragma once

inline constexpr char programName[] = "Lunaria screensaver";
inline constexpr char programVersion[] = "5.4.1";
