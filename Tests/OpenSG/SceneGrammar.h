#pragma once

#include <OpenSG/OSGFieldContainerType.h>

#include <random>
#include <string>
#include <vector>

/// Makes texts of scenes that are correct by the letter and daring in what refers to what: any
/// container may be defined, and used wherever its type fits, also inside itself.
class SceneGrammar
{
public:
    explicit SceneGrammar(unsigned seed);

    /// Some containers at the top of a file; most of them nodes.
    std::string scene();

private:
    std::string container(osg::FieldContainerType &type, int depth);
    std::string field(osg::FieldContainerType &type, int depth);
    std::string pointer(const std::string &contentType, int depth);
    osg::UInt32 fieldOf(osg::FieldContainerType &type);
    std::string use(const std::string &contentType);
    std::size_t below(std::size_t limit) { return m_random() % limit; }

    std::mt19937 m_random;
    std::vector<osg::FieldContainerType *> m_types;
    /// By the number in the name.
    std::vector<osg::FieldContainerType *> m_defined;
};
