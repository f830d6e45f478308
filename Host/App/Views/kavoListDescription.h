#pragma once

#include "Scene/kavoOpenScene.h"

#include <QIcon>
#include <QStringList>

#include <functional>

/// Describes one of the lists of the scene: what its rows are and what they offer. Every row stands
/// for an entry, a node and its content. The columns are name, type and id.
struct kavoListDescription
{
    using Entry = kavoOpenScene::Entry;

    QString title; ///< for assistive technologies
    QStringList columns;
    const char *dragFormat; ///< one of kavoDragFormats
    bool dragsContent; ///< a drag holds the id of the content after that of the node
    bool hasMaterialRows; ///< the content is a material, which has a row below its node

    std::function<kavoOpenScene::Entries()> entries;
    std::function<QIcon(const Entry &)> icon;
    /// Called on double click and Enter.
    std::function<void(const Entry &)> activate;

    /// The state of the check box; empty for a list without check boxes.
    std::function<bool(const Entry &)> isOn = {};
    std::function<void(const Entry &, bool)> setOn = {};

    /// Whether the row is marked as the active one; empty for a list without.
    std::function<bool(const Entry &)> isActive = {};
    QString activeToolTip = {};
};
