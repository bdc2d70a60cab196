#pragma once

#include "platform/Workspace.h"

#include <map>
#include <utility>

namespace tembra {

// A session whose events the test raises.
class FakeWorkspace final : public Workspace {
public:
    [[nodiscard]] std::unique_ptr<Observation> observe(std::function<void(Event)> onEvent) override {
        m_observers->emplace(m_next, std::move(onEvent));
        return std::make_unique<Entry>(m_observers, m_next++);
    }
    [[nodiscard]] bool isComposited() const override { return true; }
    Result<void> reveal(const QStringList &paths) override {
        revealed = paths;
        return openRefusal;
    }
    Result<void> openFolder(const QString &path) override {
        openedFolder = path;
        return {};
    }

    [[nodiscard]] std::vector<Application> applicationsFor(const QStringList &) const override {
        return applications;
    }
    Result<void> open(const QStringList &paths, const QString &identifier) override {
        opened = paths;
        openedWith = identifier;
        return openRefusal;
    }

    Result<void> openLink(const QUrl &url) override {
        openedLink = url;
        return openRefusal;
    }

    void raise(Event event) {
        const auto observers = *m_observers;
        for (const auto &[number, onEvent] : observers)
            onEvent(event);
    }
    [[nodiscard]] int observerCount() const { return static_cast<int>(m_observers->size()); }

    QStringList revealed;
    QString openedFolder;
    std::vector<Application> applications;
    QStringList opened;
    QString openedWith;
    QUrl openedLink;
    Result<void> openRefusal;

private:
    using Observers = std::map<int, std::function<void(Event)>>;

    class Entry final : public Observation {
    public:
        Entry(std::shared_ptr<Observers> observers, int number)
            : m_observers(std::move(observers)), m_number(number) {}
        ~Entry() override { m_observers->erase(m_number); }
        Entry(const Entry &) = delete;
        Entry &operator=(const Entry &) = delete;

    private:
        const std::shared_ptr<Observers> m_observers;
        const int m_number;
    };

    const std::shared_ptr<Observers> m_observers = std::make_shared<Observers>();
    int m_next = 0;
};

} // namespace tembra
