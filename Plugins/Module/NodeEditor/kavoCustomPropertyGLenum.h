#pragma once

#include <qtpropertybrowser.h>

class QtGLenumPropertyManagerPrivate;

/// Holds one OpenGL enumeration value per property and shows it by its name. A new property has the
/// value 0xFFFFFFFF, which has no name.
class QtGLenumPropertyManager : public QtAbstractPropertyManager
{
    Q_OBJECT
public:
    explicit QtGLenumPropertyManager(QObject *parent = nullptr);
    ~QtGLenumPropertyManager() override;

    /// 0 for a property of another manager.
    unsigned int value(const QtProperty *property) const;

public Q_SLOTS:
    /// Ignores a property of another manager. Any value is held, whether it has a name or not.
    void setValue(QtProperty *property, unsigned int value);

Q_SIGNALS:
    /// Emitted by every setValue() of a property held, also when the value stays the same.
    void valueChanged(QtProperty *property, unsigned int value);

protected:
    QString valueText(const QtProperty *property) const override;
    void initializeProperty(QtProperty *property) override;
    void uninitializeProperty(QtProperty *property) override;

private:
    QtGLenumPropertyManagerPrivate *d_ptr;
    Q_DECLARE_PRIVATE(QtGLenumPropertyManager)
    Q_DISABLE_COPY(QtGLenumPropertyManager)
};

class QtGLenumEditorFactoryPrivate;

/// Edits OpenGL enumeration values with a combo box that offers the values allowed for the field
/// whose name the property carries. For other names it offers the first group of constants that
/// holds the property's value.
class QtGLenumEditorFactory : public QtAbstractEditorFactory<QtGLenumPropertyManager>
{
    Q_OBJECT
public:
    explicit QtGLenumEditorFactory(QObject *parent = nullptr);
    ~QtGLenumEditorFactory() override;

protected:
    void connectPropertyManager(QtGLenumPropertyManager *manager) override;
    QWidget *createEditor(
        QtGLenumPropertyManager *manager, QtProperty *property, QWidget *parent) override;
    void disconnectPropertyManager(QtGLenumPropertyManager *manager) override;

private:
    QtGLenumEditorFactoryPrivate *d_ptr;
    Q_DECLARE_PRIVATE(QtGLenumEditorFactory)
    Q_DISABLE_COPY(QtGLenumEditorFactory)
    Q_PRIVATE_SLOT(d_func(), void slotPropertyChanged(QtProperty *, unsigned int))
    Q_PRIVATE_SLOT(d_func(), void slotSetValue(unsigned int))
    Q_PRIVATE_SLOT(d_func(), void slotEditorDestroyed(QObject *))
};
