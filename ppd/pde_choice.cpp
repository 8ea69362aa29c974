#include "ppd/pde_choice.h"

const QString &PDEChoiceKRVImageOptions::userTitle() const {
    if (m_userTitle.isNull() && m_choice)
        m_userTitle = QString::fromLatin1(m_choice->text);
    return m_userTitle;
}

const QString &PDEChoiceKRVImageOptions::ppdTitle() const {
    if (m_ppdTitle.isNull() && m_choice)
        m_ppdTitle = QString::fromLatin1(m_choice->choice);
    return m_ppdTitle;
}

QString PDEChoiceKRVImageOptions::description() const {
    return ppdTitle() + u'/' + userTitle();
}
