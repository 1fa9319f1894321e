// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppContext.h"

#include <QString>
#include <QWidget>

class QListView;

namespace quillmark::app {

class SidebarModel;

/// The places of the window, at its leading edge, and when the machine was inspected.
class Sidebar : public QWidget
{
    Q_OBJECT

public:
    explicit Sidebar(const AppContext &context, QWidget *parent = nullptr);

    /// Selects the place without announcing it; no place (empty, or one that there is not): nothing is
    /// selected.
    void setPlace(const QString &place);
    bool hasPlace(const QString &place) const;
    /// The place `steps` further down the list, passing headings by; the same one at an end.
    QString placeBeside(const QString &place, int steps) const;
    QWidget *list() const;

    /// While the machine is being inspected.
    void setInspecting(bool isInspecting);

Q_SIGNALS:
    void placeChosen(const QString &place);
    /// Someone means to go on in the page.
    void pageAsked();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    class Footer;
    class Strip;
    void retranslate();
    void applyAppearance();

    SidebarModel *m_model;
    QListView *m_list;
    Footer *m_footer;
    bool m_isSettingPlace = false;
};

} // namespace quillmark::app
