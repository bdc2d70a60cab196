#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <memory>

QT_BEGIN_NAMESPACE
class QAction;
class QMenu;
class QMenuBar;
QT_END_NAMESPACE

namespace tembra {

// The menus of the program's windows, built once and shown by each window's menu bar. Main thread.
//
// An item without an owner goes to the first responder: the focused widget, or the nearest of its parents
// that has a slot or invokable method of the item's name without arguments. An item that nobody answers is
// disabled while its menu is open. Ctrl stands for the command key of macOS.
class MainMenu final : public QObject {
    Q_OBJECT

public:
    explicit MainMenu(QObject *parent = nullptr);
    ~MainMenu() override;

    // Adds the menus, which this object keeps owning, to a window's bar.
    void addTo(QMenuBar &bar) const;
    [[nodiscard]] QList<QMenu *> menus() const;
    [[nodiscard]] QMenu *windowsMenu() const { return m_windowsMenu; }
    [[nodiscard]] QAction *action(const QString &selector) const;

Q_SIGNALS:
    // The items that the program itself answers.
    void checkForUpdates();
    void hideTembra();
    void hideOtherApplications();
    void unhideAllApplications();
    void terminate();

private:
    void build();
    void connectToResponders(QAction *action, const QString &selector);
    void validate(const QMenu &menu) const;

    std::vector<std::unique_ptr<QMenu>> m_menus;
    QMenu *m_windowsMenu = nullptr;
};

} // namespace tembra
