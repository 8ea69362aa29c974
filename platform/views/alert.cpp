#include "platform/views/alert.h"

#include "platform/views/captioned.h"

#include <QAbstractButton>
#include <QList>
#include <QMessageBox>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QStyle>

namespace views {

namespace {

QList<QPointer<QMessageBox>> &standing() {
    static QList<QPointer<QMessageBox>> alerts; // the one in front is last
    return alerts;
}

QMessageBox *front() {
    while (!standing().isEmpty() && !standing().last())
        standing().removeLast();
    return standing().isEmpty() ? nullptr : standing().last().data();
}

} // namespace

void runAlert(QWidget *parent, const QString &iconPath, const QString &message,
              const QString &informativeText, const QString &buttonTitle) {
    const QString gap =
        message.isEmpty() || informativeText.isEmpty() ? QString() : QStringLiteral("\n\n");
    const QPointer<QMessageBox> box = new QMessageBox(parent ? parent->window() : nullptr);
    box->setTextFormat(Qt::PlainText);
    box->setText(message + gap + informativeText);
    const int size = box->style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, box);
    const QPixmap icon(iconPath);
    if (icon.isNull())
        box->setIcon(QMessageBox::Warning);
    else
        box->setIconPixmap(icon.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    QPushButton *button = box->addButton(escapeMnemonics(buttonTitle), QMessageBox::AcceptRole);
    box->setDefaultButton(button);
    box->setEscapeButton(static_cast<QAbstractButton *>(button));
    if (parent)
        box->setWindowModality(Qt::WindowModal); // help stays usable

    standing().append(box);
    box->exec(); // the box goes with its parent if that is destroyed meanwhile
    standing().removeAll(box);
    delete box;
}

QString currentAlert() {
    const QMessageBox *box = front();
    return box ? box->text() : QString();
}

bool dismissAlert() {
    QMessageBox *box = front();
    if (!box || box->buttons().isEmpty())
        return false;
    box->buttons().constFirst()->click();
    return true;
}

} // namespace views
