#pragma once

#include <QComboBox>
#include <QObject>
#include <QPointer>
#include <QPrintDialog>
#include <QString>

namespace pdeqt {

/// A printer as Qt's dialog names it.
struct ChosenPrinter {
    QString name{};      ///< "queue", or "queue/instance" for a named set of the person's defaults
    bool isFile = false; ///< the dialog's entry for a PDF file

    QString queue() const { return name.section(u'/', 0, 0); }
    QString instance() const { return name.section(u'/', 1); } ///< empty for none
    bool operator==(const ChosenPrinter &) const = default;
};

/// Tells which printer is chosen in Qt's dialog: what its list shows, or, should a dialog have no
/// such list, the printer's own name.
class DialogPrinter : public QObject {
    Q_OBJECT

public:
    explicit DialogPrinter(QPrintDialog *dialog);
    /// Asks the dialog's QPrinter, too.
    ChosenPrinter now() const;

signals:
    void changed();

private:
    QPrintDialog *m_dialog;
    QPointer<QComboBox> m_list;
};

} // namespace pdeqt
