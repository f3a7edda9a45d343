// The text form of the settings file.
#pragma once

#include <map>
#include <string>

// Values hold line ends, tabs, '=' and backslashes; in the file these are written with a backslash.
std::string escapeSettingsValue(std::string value);
std::string unescapeSettingsValue(std::string value);

// Reads a file's whole content into the map; a later line overrides an earlier one with the same key.
void parseSettings(std::string content, std::map<std::string, std::string>& values);
// One line "key=value" for each entry, in the map's order, each with this line end.
std::string formatSettings(const std::map<std::string, std::string>& values, const char* lineEnd);
