#pragma once

#include "platform/views/menu_box.h"
#include "platform/views/view.h"

#include <functional>
#include <optional>

/// A popup menu. Items have a title, a represented text and an enabled flag of their own.
///
/// Only a person's choice of another item sends the action; picking the item already shown, the
/// wheel without focus and every change by the program are silent.
class PDE_PLATFORM_EXPORT PopupView : public MenuBox, public views::ActionSource {
    Q_OBJECT
public:
    explicit PopupView(QWidget *parent = nullptr);

    void removeAllItems();
    /// Appends an enabled item; its represented text is null. The first item becomes selected.
    void addItemWithTitle(const QString &title);
    /// Inserts an item at a place from 0; a place outside 0 to the number of items appends.
    void insertItemWithTitle(const QString &title, int index);
    int numberOfItems() const { return count(); }
    /// @return the title as given, or null outside the menu
    QString itemTitle(int index) const;
    QString itemRepresentedObject(int index) const;
    void setItemRepresentedObject(int index, const QString &object);
    bool isItemEnabled(int index) const;
    void setItemEnabled(int index, bool enabled);
    /// Sets who knows why an item is disabled. The answer, words for a person or a null text, is
    /// the item's tool tip and its accessible description, and the menu's own while the item is
    /// selected. Nobody is asked before a person or an assistive program wants to know.
    void setExplainer(std::function<QString(int index)> explainer);
    /// @return why an item is disabled; null for one that is enabled, or that nobody explains
    QString itemExplanation(int index) const;
    /// Selects an item; -1 selects none, any other place outside the menu is ignored.
    void selectItemAtIndex(int index);
    /// @return the selected item from 0, or -1
    int indexOfSelectedItem() const { return currentIndex(); }
    /// While the action of a person's act is sent: the item that was selected before, -1 for none;
    /// for a refused choice to go back to. Nothing at any other time.
    std::optional<int> itemBeforeAct() const { return m_before; }
    /// What a person does with the menu: the action is sent if the selection changes.
    /// @return false, with nothing done, if view or item is disabled, hidden or missing
    bool chooseItem(int index);

    /// With a minimum contents length: the width of so many characters, whatever the items are.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

    void showPopup() override;
    void dropAction() override;

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void activate(int index);

    int m_shown = -1; ///< the item that was selected when a person's act began
    std::optional<int> m_before;
    std::function<QString(int)> m_explainer;
};
