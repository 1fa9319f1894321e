// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/NoticeBar.h"

namespace quillmark::app {

NoticeBar::NoticeBar(QWidget *parent)
    : QWidget(parent)
{
    hide();
}

void NoticeBar::show(const Notice &)
{
    m_isShown = true;
}

void NoticeBar::dismiss()
{
    m_isShown = false;
}

} // namespace quillmark::app
