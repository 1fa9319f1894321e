// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"
#include "app/Watching.h"

#include <QIcon>
#include <QObject>
#include <QString>

namespace quillmark::app {

/// What stands for the program in the menu bar, or among the status icons: a symbol, and the figure that the
/// settings choose. While it is shown it counts as a view of the live monitor.
class MenuBarLabel : public QObject
{
    Q_OBJECT

public:
    explicit MenuBarLabel(const AppContext &context, QObject *parent = nullptr);

    void setShown(bool isShown) { m_watching->setShown(isShown); }
    bool isShown() const { return m_watching->isShown(); }

    /// Of one colour, which a Mac replaces by that of its menu bar.
    static QIcon icon();
    /// "23%"; empty before the first sample, and when the icon is to stand alone.
    QString figure() const;
    /// The name of the item for screen readers, and below it what the figure is of.
    QString toolTip() const;

Q_SIGNALS:
    /// figure() and toolTip() are others now.
    void changed();

private:
    void update();

    const AppContext &m_context;
    Watching *m_watching;
    QString m_announced; ///< the tool tip at the last changed()
};

} // namespace quillmark::app
