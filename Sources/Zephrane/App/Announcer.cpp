#include "App/Announcer.hpp"

#include <algorithm>
#include <vector>

namespace {

// Every engine has its own singleton; each one hands the words to its window's notice.
std::vector<Announcer*>& liveAnnouncers() {
    static std::vector<Announcer*> announcers;
    return announcers;
}

void postToPlatform(const QString& text) {
    const std::vector<Announcer*> listeners = liveAnnouncers();
    for (Announcer* announcer : listeners)
        emit announcer->spoken(text);
}

Announcer::Sink& currentSink() {
    static Announcer::Sink sink;
    return sink;
}

} // namespace

Announcer::Announcer(QObject* parent) : QObject(parent) { liveAnnouncers().push_back(this); }

Announcer::~Announcer() { std::erase(liveAnnouncers(), this); }

void Announcer::announce(const QString& text) {
    if (text.isEmpty())
        return;
    if (const Sink& sink = currentSink())
        sink(text);
    else
        postToPlatform(text);
}

Announcer::Sink Announcer::installSink(Sink sink) {
    Sink previous = std::move(currentSink());
    currentSink() = std::move(sink);
    return previous;
}
