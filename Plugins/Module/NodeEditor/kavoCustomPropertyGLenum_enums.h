#pragma once

#include <QString>

#include <map>
#include <set>
#include <vector>

/// Enters every known OpenGL constant into \a enumToName, where the first name of a value stays,
/// and appends the set of values of each group of related constants to \a groups.
void setupGLenumMap(
    std::map<unsigned int, QString> &enumToName, std::vector<std::set<unsigned int>> &groups);

/// Enters the values that make sense for a field under the field's name. Values without an entry in
/// the value-to-name table are allowed too: the scene graph accepts them though they came after
/// OpenGL 1.1.
void setupNameToEnums(std::map<QString, std::set<unsigned int>> &nameToEnums);
