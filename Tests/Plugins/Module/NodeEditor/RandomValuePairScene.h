#pragma once

#include <kavoNodePtr.h>

#include <random>
#include <string>

/// Small scenes with value pairs of every odd kind, the same for the same seed: repeated keys, keys
/// that differ behind a NUL only, lists of unequal length, newlines anywhere, cleared mask bits,
/// nodes without core, name or pairs.
class RandomValuePairScene
{
public:
    explicit RandomValuePairScene(unsigned seed);

    kavoNodePtr make();
    /// \returns true in one of so many calls
    bool oneIn(int count);

private:
    int below(int limit);
    std::string text();
    osg::NodePtr makeNode(int depth);
    void addPairs(const osg::NodePtr &node);

    std::mt19937 m_random;
};
