#pragma once

#include <qtpropertybrowser.h>

/// A colour as a colour field of the scene holds it. No range is enforced.
struct colorVal
{
    float r; ///< red, 0 to 1
    float g; ///< green, 0 to 1
    float b; ///< blue, 0 to 1
    float a; ///< alpha, 0 to 1; 1 when set through the editor
};

class QtKavoColorPropertyManagerPrivate;

/// Holds one colour per property and shows it as a swatch and its four components. A new property
/// is opaque black.
class QtKavoColorPropertyManager : public QtAbstractPropertyManager
{
    Q_OBJECT
public:
    explicit QtKavoColorPropertyManager(QObject *parent = nullptr);
    ~QtKavoColorPropertyManager() override;

    /// All zero for a property of another manager.
    colorVal value(const QtProperty *property) const;

public Q_SLOTS:
    /// Ignores a property of another manager.
    void setValue(QtProperty *property, colorVal value);

Q_SIGNALS:
    /// Emitted by every setValue() of a property held, also when the value stays the same.
    void valueChanged(QtProperty *property, colorVal value);

protected:
    QIcon valueIcon(const QtProperty *property) const override;
    QString valueText(const QtProperty *property) const override;
    void initializeProperty(QtProperty *property) override;
    void uninitializeProperty(QtProperty *property) override;

private:
    QtKavoColorPropertyManagerPrivate *d_ptr;
    Q_DECLARE_PRIVATE(QtKavoColorPropertyManager)
    Q_DISABLE_COPY(QtKavoColorPropertyManager)
};

class QtKavoColorEditorFactoryPrivate;

/// Edits colours with the host's colour picker. A picker that is open keeps its colour when the
/// property changes from elsewhere.
class QtKavoColorEditorFactory : public QtAbstractEditorFactory<QtKavoColorPropertyManager>
{
    Q_OBJECT
public:
    explicit QtKavoColorEditorFactory(QObject *parent = nullptr);
    ~QtKavoColorEditorFactory() override;

protected:
    void connectPropertyManager(QtKavoColorPropertyManager *manager) override;
    QWidget *createEditor(
        QtKavoColorPropertyManager *manager, QtProperty *property, QWidget *parent) override;
    void disconnectPropertyManager(QtKavoColorPropertyManager *manager) override;

private:
    QtKavoColorEditorFactoryPrivate *d_ptr;
    Q_DECLARE_PRIVATE(QtKavoColorEditorFactory)
    Q_DISABLE_COPY(QtKavoColorEditorFactory)
    Q_PRIVATE_SLOT(d_func(), void slotPropertyChanged(QtProperty *, colorVal))
    Q_PRIVATE_SLOT(d_func(), void slotSetValue())
    Q_PRIVATE_SLOT(d_func(), void slotEditorDestroyed(QObject *))
};
