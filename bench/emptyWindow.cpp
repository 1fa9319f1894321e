// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QWidget>

/// A window of ours without anything in it: what the toolkit itself costs.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Empty window"));
    window.resize(1180, 760);
    window.show();
    return application.exec();
}
