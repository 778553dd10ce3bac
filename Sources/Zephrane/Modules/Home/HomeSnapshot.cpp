#include "Modules/Home/HomeSnapshot.hpp"

int HomeSnapshot::stepsDone() const {
    return (junk.kind == Step::Kind::done ? 1 : 0) + (leftovers.kind == Step::Kind::done ? 1 : 0);
}

std::int64_t HomeSnapshot::totalBytes() const {
    return junk.bytes + leftovers.bytes;
}

QString HomeSnapshot::stageRaw() const {
    switch (stage) {
    case Stage::before: return QStringLiteral("before");
    case Stage::scanning: return QStringLiteral("scanning");
    case Stage::after: return QStringLiteral("after");
    }
    return {};
}

QString HomeSnapshot::stepRaw(const Step& step) {
    switch (step.kind) {
    case Step::Kind::idle: return QStringLiteral("idle");
    case Step::Kind::queued: return QStringLiteral("queued");
    case Step::Kind::running: return QStringLiteral("running");
    case Step::Kind::done: return QStringLiteral("done");
    }
    return {};
}

QVariantList HomeSnapshot::partValues() const {
    QVariantList values;
    for (const Part& part : parts)
        values.append(QVariant::fromValue(HomePart{part.title, static_cast<double>(part.bytes)}));
    return values;
}
