#include "Tables/kavoValuePairDialog.h"

#include "Tables/kavoTableFormatBox.h"

#include <kavoScenegraph.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>

namespace {

struct Filter
{
    const char *label;
    kavoPatterns kavoTableOptions::*patterns; ///< the option that it sets
};

const Filter filters[] = {
    { QT_TRANSLATE_NOOP("kavoValuePairDialog", "&Keys:"), &kavoTableOptions::keys },
    { QT_TRANSLATE_NOOP("kavoValuePairDialog", "&Names of nodes:"), &kavoTableOptions::nodeNames },
    { QT_TRANSLATE_NOOP("kavoValuePairDialog", "&Types of cores:"), &kavoTableOptions::coreTypes },
    { QT_TRANSLATE_NOOP("kavoValuePairDialog", "Nodes with one of the ke&ys:"),
        &kavoTableOptions::nodeKeys },
};

} // namespace

kavoValuePairDialog::kavoValuePairDialog(Task task, QWidget *parent)
    : QDialog(parent)
{
    const QString titles[] = { tr("Export Value Pairs"), tr("Export Table"), tr("Import Table") };
    setWindowTitle(titles[task]);
    auto *layout = new QVBoxLayout(this);
    if (task != ImportTable)
        layout->addWidget(createNodesBox());
    if (task == ExportTable)
        layout->addWidget(createFilterBox());
    if (task != ExportValuePairs) {
        m_format = new kavoTableFormatBox(task == ExportTable);
        layout->addWidget(m_format);
    }
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)
        ->setText(task == ImportTable ? tr("&Import") : tr("&Export..."));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

QGroupBox *kavoValuePairDialog::createNodesBox()
{
    auto *box = new QGroupBox(tr("Nodes"));
    auto *wholeScene = new QRadioButton(tr("&Whole scene"));
    wholeScene->setChecked(true);
    m_selection = new QRadioButton(tr("&Selected node and all below"));
    m_selection->setEnabled(kavoScenegraph::getSelectedNode() != osg::NullFC);
    m_allNodes = new QCheckBox(tr("Also nodes that are not fully &visible"));
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(wholeScene);
    layout->addWidget(m_selection);
    layout->addWidget(m_allNodes);
    return box;
}

QGroupBox *kavoValuePairDialog::createFilterBox()
{
    auto *box = new QGroupBox(tr("Only"));
    auto *layout = new QFormLayout(box);
    for (const Filter &filter : filters) {
        auto *line = new QLineEdit;
        line->setPlaceholderText(tr("all, or patterns such as mass*;color"));
        layout->addRow(tr(filter.label), line);
        m_filters.append(line);
    }
    return box;
}

osg::NodePtr kavoValuePairDialog::root() const
{
    if (m_selection && m_selection->isChecked())
        return kavoScenegraph::getSelectedNode();
    return kavoScenegraph::getRoot();
}

kavoTableOptions kavoValuePairDialog::options() const
{
    kavoTableOptions options;
    options.takesAllNodes = m_allNodes && m_allNodes->isChecked();
    for (int i = 0; i < m_filters.size(); ++i)
        options.*filters[i].patterns = kavoPatterns(m_filters[i]->text());
    if (m_format)
        m_format->apply(options);
    return options;
}

QString kavoValuePairDialog::filterError() const
{
    for (const QLineEdit *line : m_filters) {
        const QString error = kavoPatterns(line->text()).error();
        if (!error.isEmpty())
            return error;
    }
    return QString();
}

void kavoValuePairDialog::accept()
{
    const QString error = filterError();
    if (!error.isEmpty()) {
        QMessageBox::warning(this, windowTitle(), error);
        return;
    }
    if (m_format)
        m_format->remember();
    QDialog::accept();
}
