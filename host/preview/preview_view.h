#pragma once

#include "host/document.h"
#include "host/preview/sheet_canvas.h"
#include "host/preview/sheet_layout.h"

#include <QWidget>

#include <memory>
#include <optional>

class QSpinBox;
class QToolButton;

namespace host {

/// The document's pages as they will lie on the sheets, one side at a time, with buttons and a
/// field to turn to others. All of a document's work is done in the background: nothing here waits
/// for it.
class PreviewView : public QWidget {
    Q_OBJECT

public:
    explicit PreviewView(QWidget *parent = nullptr);
    ~PreviewView() override;

    /// Shows another document from its first side on.
    void setDocument(const Document &document);
    void clear();
    /// Lays the pages out anew, and stays at the first page that is shown. Until it is called for
    /// the first time the paper is A4.
    void setSheet(const SheetOptions &options);

    /// The document's pages; 0 while that isn't known.
    int pageCount() const;
    /// What is shown, from 0; see SheetLayout.
    int side() const { return m_side; }
    void showSide(int side);

signals:
    /// The document's pages; 0 once a document is gone or can't be opened.
    void pageCountKnown(int count);

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void openDocument();
    void step(SheetCanvas::Step step);
    void updateArrows();
    void layOut();
    void refresh();
    void showWords(const QString &words);
    void nameCanvas(const QString &words);
    void showPosition();
    QString describeSide() const;

    std::optional<Document> m_document;
    SheetOptions m_options;
    std::unique_ptr<PageSource> m_source; ///< none without a document
    std::optional<SheetLayout> m_layout;  ///< once the document is opened
    int m_side = 0;
    int m_page = 0; ///< the first one of the side that the person turned to

    SheetCanvas *m_canvas;
    QString m_position; ///< what the field shows
    QToolButton *m_previous;
    QToolButton *m_next;
    QSpinBox *m_sheet;
};

} // namespace host
