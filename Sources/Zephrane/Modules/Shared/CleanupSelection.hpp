#pragma once

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/Removal/CleanupItem.hpp"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <span>
#include <unordered_set>

// The items a channel's removal would take, by URL. Changes notify only when something changed.
class CleanupSelection : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A selection belongs to a channel model")
    Q_PROPERTY(int count READ count NOTIFY changed)

public:
    using URL = CleanerCore::URL;

    explicit CleanupSelection(QObject* parent = nullptr) : QObject(parent) {}

    const std::unordered_set<URL>& urls() const { return chosen; }
    bool contains(const URL& url) const { return chosen.contains(url); }
    int count() const { return static_cast<int>(chosen.size()); }

    void set(std::unordered_set<URL> urls);
    void setSelected(const URL& url, bool on);
    // Every item of a group on or off at once.
    void setSelected(std::span<const CleanerCore::CleanupItem> items, bool on);
    // Drops the URLs `drop` answers true for.
    void dropIf(const std::function<bool(const URL&)>& drop);

    // The lamp of a group of items: on when all are selected, mixed when some are.
    struct State {
        bool isOn = false;
        bool isMixed = false;
        bool operator==(const State&) const = default;
    };
    State stateOf(std::span<const CleanerCore::CleanupItem> items) const;

    // For the views, by path.
    Q_INVOKABLE bool isSelected(const QString& path) const;
    Q_INVOKABLE void setSelected(const QString& path, bool on);

signals:
    void changed();

private:
    std::unordered_set<URL> chosen;
};
