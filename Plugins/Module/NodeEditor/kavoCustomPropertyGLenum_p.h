#pragma once

#include "kavoCustomPropertyGLenum.h"
#include "kavoEditorFactoryPrivate.h"

#include <QComboBox>

#include <map>
#include <set>
#include <vector>

class QtGLenumPropertyManagerPrivate
{
    QtGLenumPropertyManager *q_ptr;
    Q_DECLARE_PUBLIC(QtGLenumPropertyManager)
public:
    // Read-only tables that all managers and factories share.
    struct EnumData
    {
        EnumData();

        std::map<QString, std::set<unsigned int>> nameToEnums;
        std::map<unsigned int, QString> enumToName;
        std::vector<std::set<unsigned int>> groups;
    };
    static const EnumData enumData;

    struct Data
    {
        unsigned int val = 0xFFFFFFFF;
    };
    std::map<const QtProperty *, Data> m_values;
};

class QtGLenumEditorFactoryPrivate : public kavoEditorFactoryPrivate<QComboBox>
{
    QtGLenumEditorFactory *q_ptr;
    Q_DECLARE_PUBLIC(QtGLenumEditorFactory)
public:
    void slotPropertyChanged(QtProperty *property, unsigned int value);
    void slotSetValue(unsigned int index);
};
