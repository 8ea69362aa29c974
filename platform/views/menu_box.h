#pragma once

#include "platform/export.h"

#include <QComboBox>

/// A combo box that assistive programs know by its name: on Unix Qt gives the current item there.
class PDE_PLATFORM_EXPORT MenuBox : public QComboBox {
    Q_OBJECT
public:
    explicit MenuBox(QWidget *parent = nullptr);
};
