#pragma once

#include "kavoCustomPropertyColor.h"
#include "kavoEditorFactoryPrivate.h"

#include <QKAVOColorManipulator.h>

#include <map>

class QtKavoColorPropertyManagerPrivate
{
    QtKavoColorPropertyManager *q_ptr;
    Q_DECLARE_PUBLIC(QtKavoColorPropertyManager)
public:
    struct Data
    {
        colorVal val = { 0, 0, 0, 1 };
    };
    std::map<const QtProperty *, Data> m_values;
};

class QtKavoColorEditorFactoryPrivate : public kavoEditorFactoryPrivate<QKAVOColorManipulator>
{
    QtKavoColorEditorFactory *q_ptr;
    Q_DECLARE_PUBLIC(QtKavoColorEditorFactory)
public:
    void slotPropertyChanged(QtProperty *property, colorVal value);
    void slotSetValue();
    static colorVal fromHsv(float hue, float saturation, float value);
};
