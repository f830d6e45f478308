#pragma once

#include <QString>

#include <map>
#include <set>
#include <vector>

/// Enters the names of all known OpenGL constants into `enumToName`; if two names have the same
/// value, the first one stays. Appends one set of values per group of constants to `groups`.
void setupGLenumMap(
    std::map<unsigned int, QString> &enumToName, std::vector<std::set<unsigned int>> &groups);

/// Enters the values that each known field allows. Some of these values have no name, because they
/// are newer than OpenGL 1.1.
void setupNameToEnums(std::map<QString, std::set<unsigned int>> &nameToEnums);
