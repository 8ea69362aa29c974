#pragma once

#include <QLabel>

namespace host {

/// A label for text that may come from anywhere: nothing in it is taken as markup.
inline QLabel *plainLabel(const QString &text = {}) {
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

} // namespace host
