#include "host/dialog/password_dialog.h"

#include "host/dialog/plain_label.h"
#include "host/words.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

namespace host {

std::optional<Credentials> askPassword(QWidget *parent, const QString &prompt) {
    QDialog window(parent);
    window.setObjectName(QStringLiteral("passwordDialog"));
    window.setWindowTitle(HostWords::tr("Authentication Needed"));
    auto *layout = new QFormLayout(&window);
    QLabel *question = plainLabel(prompt);
    question->setWordWrap(true);
    layout->addRow(question);
    auto *user = new QLineEdit(QString::fromUtf8(cupsUser()));
    user->setObjectName(QStringLiteral("user"));
    auto *password = new QLineEdit;
    password->setObjectName(QStringLiteral("password"));
    password->setEchoMode(QLineEdit::Password);
    layout->addRow(HostWords::tr("&Name:"), user);
    layout->addRow(HostWords::tr("Pass&word:"), password);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &window, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &window, &QDialog::reject);
    layout->addRow(buttons);
    window.setMinimumWidth(window.fontMetrics().averageCharWidth() * 48);
    window.resize(window.sizeHint());
    window.resize(window.width(),
                  qMax(window.height(), layout->totalHeightForWidth(window.width())));
    password->setFocus();
    const QPointer<QDialog> alive(&window);
    if (window.exec() != QDialog::Accepted || !alive)
        return {};
    return Credentials{user->text(), password->text()};
}

} // namespace host
