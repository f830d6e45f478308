#pragma once

#include <QObject>

class QMenu;
class QWidget;
class kavoDocument;

/// The commands of the File menu that save the scene.
class kavoSaveActions : public QObject
{
    Q_OBJECT

public:
    /// Adds the commands at the end of the menu.
    /// \param window parent of this object and of its dialogs
    kavoSaveActions(kavoDocument &document, QWidget *window, QMenu *fileMenu);

    /// Asks the user what to do about unsaved changes, if there are any.
    /// \returns false if the scene must stay open: the user canceled, or saving failed
    bool mayClose();

signals:
    void saved(const QString &file);
    void failed(const QString &message);

private:
    bool save();
    bool saveAs();
    bool saveTo(const QString &file);

    kavoDocument &m_document;
    QWidget *m_window;
};
