#include "Modules/Home/HomeModel.hpp"

#include "App/AppModel.hpp"
#include "App/Announcer.hpp"
#include "Modules/Shared/WhenDone.hpp"
#include "Painel/ByteFormat.hpp"

#include <QLocale>

#include <algorithm>
#include <numeric>

namespace {

std::int64_t totalOf(const std::vector<CleanerCore::CleanupItem>& items) {
    return std::accumulate(items.begin(), items.end(), std::int64_t{0},
                           [](std::int64_t sum, const CleanerCore::CleanupItem& item) { return sum + item.size; });
}

bool hasResults(const ModulePhaseModel& model) {
    return model.hasScanned() && (model.phase() == ModulePhase::ready || model.phase() == ModulePhase::done);
}

} // namespace

HomeModel::HomeModel(AppModel& app, QObject* parent) : QObject(parent), app(app) {
    for (ModulePhaseModel* model : std::initializer_list<ModulePhaseModel*>{
             app.junk(), app.spaceLens(), app.large(), app.uninstaller(), app.leftovers(), app.trash(),
             app.updates()}) {
        connect(model, &ModulePhaseModel::phaseChanged, this, &HomeModel::changed);
        connect(model, &ModulePhaseModel::resultsChanged, this, &HomeModel::changed);
    }
    connect(app.trash(), &TrashModel::accessChanged, this, &HomeModel::changed);
    connect(app.updates(), &UpdatesModel::statesChanged, this, &HomeModel::changed);
    connect(&app, &AppModel::smartScanChanged, this, &HomeModel::changed);
    connect(&app, &AppModel::smartScanningChanged, this, [this] {
        if (diskRead)
            refreshDisk();
    });
}

HomeSnapshot::Step HomeModel::step(const ModulePhaseModel& model, bool reported) const {
    using Kind = HomeSnapshot::Step::Kind;
    if (model.phase() == ModulePhase::scanning)
        return {Kind::running};
    if (app.isSmartScanning() && !reported)
        return {Kind::queued};
    if (hasResults(model))
        return {Kind::done, totalOf(model.allItems())};
    return {Kind::idle};
}

HomeSnapshot HomeModel::snapshot() const {
    HomeSnapshot shot;
    shot.junk = step(*app.junk(), app.smartScanReported(Channel::junk));
    shot.leftovers = step(*app.leftovers(), app.smartScanReported(Channel::leftovers));
    using Kind = HomeSnapshot::Step::Kind;
    if (app.isSmartScanning())
        shot.stage = HomeSnapshot::Stage::scanning;
    else if (shot.junk.kind == Kind::idle && shot.leftovers.kind == Kind::idle)
        shot.stage = HomeSnapshot::Stage::before;
    else
        shot.stage = HomeSnapshot::Stage::after;
    shot.itemCount = app.junk()->itemCount() + app.leftovers()->itemCount();

    for (const CleanerCore::JunkGroup& group : app.junk()->groups())
        if (const std::int64_t bytes = group.totalSize(); !group.items.empty())
            shot.parts.push_back({QString::fromStdString(group.rule.title), bytes});
    std::ranges::stable_sort(shot.parts, std::ranges::greater{}, &HomeSnapshot::Part::bytes);
    if (const auto items = app.leftovers()->allItems(); !items.empty())
        shot.parts.push_back({qtTrId("channel.leftovers.short"), totalOf(items)});

    if (app.smartScanStartedAt().isValid())
        shot.startedAt = app.smartScanStartedAt();
    if (app.smartScanFinishedAt().isValid())
        shot.finishedAt = app.smartScanFinishedAt();
    return shot;
}

ChannelReading HomeModel::bytesReading(Channel channel, const ModulePhaseModel& model) const {
    ChannelReading reading{Channels::rawValue(channel), Channels::shortLabel(channel), {}, false};
    if (model.phase() == ModulePhase::scanning)
        reading.text = qtTrId("home.reading.scanning");
    else if (!hasResults(model))
        reading.text = qtTrId("home.reading.notScanned");
    else if (const qint64 bytes = model.foundBytes(); bytes > 0) {
        reading.text = qtTrId("home.reading.found").arg(ByteFormat::text(static_cast<double>(bytes)));
        reading.lit = true;
    } else
        reading.text = qtTrId("home.reading.nothing");
    return reading;
}

ChannelReading HomeModel::reading(Channel channel) const {
    ChannelReading reading{Channels::rawValue(channel), Channels::shortLabel(channel), {}, false};
    auto otherwise = [&](const ModulePhaseModel& model) {
        reading.text = qtTrId(model.phase() == ModulePhase::scanning ? "home.reading.scanning"
                                                                      : "home.reading.notScanned");
        return reading;
    };
    const QLocale locale;
    switch (channel) {
    case Channel::home:
        return reading;
    case Channel::junk:
        return bytesReading(channel, *app.junk());
    case Channel::leftovers:
        return bytesReading(channel, *app.leftovers());
    case Channel::lens:
        if (!hasResults(*app.spaceLens()))
            return otherwise(*app.spaceLens());
        reading.text = qtTrId("home.reading.mapped")
                           .arg(ByteFormat::text(static_cast<double>(app.spaceLens()->foundBytes())));
        return reading;
    case Channel::large:
        if (!hasResults(*app.large()))
            return otherwise(*app.large());
        reading.text = qtTrId("home.reading.files")
                           .arg(locale.toString(app.large()->itemCount()),
                                ByteFormat::text(static_cast<double>(app.large()->foundBytes())));
        return reading;
    case Channel::apps:
        if (!hasResults(*app.uninstaller()))
            return otherwise(*app.uninstaller());
        reading.text = qtTrId("home.reading.apps")
                           .arg(locale.toString(app.uninstaller()->itemCount()));
        return reading;
    case Channel::trash: {
        const TrashModel& trash = *app.trash();
        if (trash.access() == TrashModel::Access::denied)
            reading.text = qtTrId("home.reading.noAccess");
        else if (!hasResults(trash))
            return otherwise(trash);
        else if (const qint64 bytes = trash.foundBytes(); bytes > 0)
            reading.text = qtTrId("home.reading.trash").arg(ByteFormat::text(static_cast<double>(bytes)));
        else
            reading.text = qtTrId("home.reading.trash.empty");
        return reading;
    }
    case Channel::updates: {
        const std::optional<int> pending = app.updates()->pendingCount();
        if (!pending)
            return otherwise(*app.updates());
        reading.text = *pending > 0 ? qtTrId("home.reading.updates").arg(locale.toString(*pending))
                                    : qtTrId("home.reading.upToDate");
        reading.lit = *pending > 0;
        return reading;
    }
    }
    return reading;
}

QString HomeModel::scannedAtText() const {
    const QDateTime finished = app.smartScanFinishedAt();
    if (!finished.isValid())
        return qtTrId("home.visor.never");
    return qtTrId("home.visor.scannedAt").arg(QLocale().toString(finished.time(), QLocale::ShortFormat));
}

QVariantList HomeModel::readingValues() const {
    QVariantList values;
    for (Channel channel : Channels::allCases)
        if (channel != Channel::home)
            values.append(QVariant::fromValue(reading(channel)));
    return values;
}

void HomeModel::runSmartScan() {
    whenDone(this, app.smartScan(), [this] {
        const HomeSnapshot shot = snapshot();
        const std::int64_t total = shot.totalBytes();
        Announcer::announce(total > 0 ? qtTrId("home.scan.done").arg(ByteFormat::spoken(static_cast<double>(total)))
                                      : qtTrId("home.scan.done.none"));
    });
}

void HomeModel::review() {
    const SystemJunkModel& junk = *app.junk();
    app.open(hasResults(junk) && totalOf(junk.allItems()) >= 1 ? Channel::junk : Channel::leftovers);
}

void HomeModel::refreshDisk() {
    diskRead = true;
    diskReading = HomeDisk::read(diskPath);
    emit diskChanged();
}
