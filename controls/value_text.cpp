#include "controls/value_text.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

bool integerToText(const CtrlDataBlk *block, char *buffer, int size) {
    if (!block || !buffer)
        return false;
    const int length = std::snprintf(buffer, static_cast<size_t>(size), "%d", block->word());
    return length > 0 && length < size;
}

bool integerFromText(const char *text, CtrlDataBlk *block) {
    if (!text || !block)
        return false;
    block->setWord(leadingInteger(text));
    return true;
}

void addSummaryRow(const QString &title, const QString &text, QVariantMap *summary,
                   QStringList *orderArray) {
    if (!summary || !orderArray || title.isNull() || text.isNull())
        return;
    summary->insert(title, text);
    orderArray->append(title);
}
