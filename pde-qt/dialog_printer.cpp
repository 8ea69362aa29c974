#include "pde-qt/dialog_printer.h"

#include <QPrinter>

namespace pdeqt {
namespace {

/// The entry for a file is the last one, behind a line; alone where there is no printer.
bool isFileEntry(const QComboBox &list, const QPrinter &printer) {
    const int index = list.currentIndex();
    if (index < 0 || index != list.count() - 1)
        return false;
    if (index == 0)
        return printer.outputFormat() == QPrinter::PdfFormat;
    return list.itemData(index - 1, Qt::AccessibleDescriptionRole) == QStringLiteral("separator");
}

} // namespace

DialogPrinter::DialogPrinter(QPrintDialog *dialog)
    : m_dialog(dialog), m_list(dialog->findChild<QComboBox *>(QStringLiteral("printers"))) {
    if (m_list)
        connect(m_list, &QComboBox::currentIndexChanged, this, &DialogPrinter::changed);
}

ChosenPrinter DialogPrinter::now() const {
    const QPrinter &printer = *m_dialog->printer();
    if (!m_list)
        return {printer.printerName(), printer.outputFormat() == QPrinter::PdfFormat};
    if (isFileEntry(*m_list, printer))
        return {{}, true};
    return {m_list->currentText()};
}

} // namespace pdeqt
