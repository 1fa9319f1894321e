// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace quillmark::app {

/// Follows whether a view can be seen: it is shown, in a window that is not minimised.
///
/// Lives on the main thread.
class Visibility : public QObject
{
    Q_OBJECT

public:
    /// The view becomes the parent.
    explicit Visibility(QWidget &view);

    bool isVisible() const { return m_isVisible; }

Q_SIGNALS:
    void changed(bool isVisible);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void followWindow();
    void set(bool isVisible);

    QWidget &m_view;
    QPointer<QWidget> m_window;
    bool m_isVisible = false;
};

} // namespace quillmark::app
