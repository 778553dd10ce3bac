#include "Modules/Large/LargeFilesModel.hpp"

#include "App/FileManager.hpp"
#include "CleanerCore/LargeFiles/LargeFileScanner.hpp"
#include "CleanerCore/LargeFiles/LargeFileSteps.hpp"
#include "CleanerCore/LargeFiles/SizeOption.hpp"
#include "Modules/Large/LargeFileList.hpp"
#include "Modules/Shared/PhaseFormat.hpp"
#include "Painel/ByteFormat.hpp"

#include <QDir>

#include <array>
#include <map>
#include <utility>

using CleanerCore::FileKind;
using CleanerCore::LargeFile;
using CleanerCore::LargeFileAge;
using CleanerCore::LargeFileScanEvent;
using CleanerCore::LargeFileSort;
using CleanerCore::URL;

namespace {

constexpr std::array<std::pair<LargeFileAge, const char*>, 4> ageTitles{{
    {LargeFileAge::any, QT_TRID_NOOP("large.age.any")},
    {LargeFileAge::threeMonths, QT_TRID_NOOP("large.age.threeMonths")},
    {LargeFileAge::sixMonths, QT_TRID_NOOP("large.age.sixMonths")},
    {LargeFileAge::oneYear, QT_TRID_NOOP("large.age.oneYear")},
}};
constexpr std::array<const char*, 4> ageSpoken{
    QT_TRID_NOOP("large.age.any"), QT_TRID_NOOP("large.age.threeMonths.spoken"),
    QT_TRID_NOOP("large.age.sixMonths.spoken"), QT_TRID_NOOP("large.age.oneYear.spoken")};

constexpr std::array<std::pair<FileKind, const char*>, 7> kindTitles{{
    {FileKind::video, QT_TRID_NOOP("large.kind.video")},
    {FileKind::audio, QT_TRID_NOOP("large.kind.audio")},
    {FileKind::image, QT_TRID_NOOP("large.kind.image")},
    {FileKind::archive, QT_TRID_NOOP("large.kind.archive")},
    {FileKind::diskImage, QT_TRID_NOOP("large.kind.diskImage")},
    {FileKind::document, QT_TRID_NOOP("large.kind.document")},
    {FileKind::other, QT_TRID_NOOP("large.kind.other")},
}};

QString raw(std::string_view value) {
    return QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
}

} // namespace

LargeFilesModel::LargeFilesModel(Preferences& preferences, QObject* parent)
    : ModulePhaseModel(preferences, parent), homeFolder(URL::file(QDir::homePath().toStdString())),
      clock([] { return std::chrono::system_clock::now(); }), calendar(CleanerCore::currentCalendar()),
      rows(new LargeFileList(*this, this)) {
    connect(selection(), &CleanupSelection::changed, this, [this] {
        rows->refreshSelection();
        refreshSelectAll();
    });
}

LargeFilesModel::~LargeFilesModel() = default;

void LargeFilesModel::setHome(URL home) {
    homeFolder = home;
    setRemovalHome(std::move(home));
}

void LargeFilesModel::setClock(std::function<std::chrono::system_clock::time_point()> now) {
    clock = std::move(now);
    refreshVisible();
}

ScanPlan LargeFilesModel::scanPlan() {
    // The floor is the smallest size choice, so that every later filter works on the list in hand.
    const auto scanner = CleanerCore::LargeFileScanner::forHome(homeFolder, CleanerCore::SizeOption::scanFloor);
    // One listing of the home; the walk itself runs on the pool.
    const std::vector<URL> areas = scanner.areas();

    ScanUnit unit;
    unit.id = QStringLiteral("large");
    unit.title = qtTrId("channel.large.title");
    unit.path = QStringLiteral("~");
    std::set<std::string, std::less<>> ids;
    std::map<std::string, int, std::less<>> tileOf;
    for (const URL& area : areas) {
        const std::string name = area.lastPathComponent();
        unit.tiles.push_back({QString::fromStdString(name), QString::fromStdString(name)});
        ids.insert(name);
        tileOf.emplace(name, static_cast<int>(unit.tiles.size()) - 1);
    }
    unit.tiles.push_back({raw(CleanerCore::LargeFileSteps::otherID), qtTrId("large.scan.otherFolders")});
    ids.insert(std::string(CleanerCore::LargeFileSteps::otherID));
    tileOf.emplace(CleanerCore::LargeFileSteps::otherID, static_cast<int>(unit.tiles.size()) - 1);

    auto result = std::make_shared<std::vector<LargeFile>>();
    unit.work = [scanner, home = homeFolder, ids, tileOf, result](std::stop_token stop, ScanFeed& feed) {
        int count = 0;
        std::int64_t bytes = 0;
        const CleanerCore::LargeFileScanner::Events events = [&](const LargeFileScanEvent& event) {
            if (const auto* entered = event.as<LargeFileScanEvent::Entered>()) {
                const std::string name = entered->area.lastPathComponent();
                if (const auto tile = tileOf.find(name); tile != tileOf.end())
                    feed.enter(tile->second);
                feed.reading("~/" + QString::fromStdString(name));
            } else if (const auto* find = event.as<LargeFileScanEvent::Found>()) {
                if (const auto step = CleanerCore::LargeFileSteps::stepID(find->file.url, home, ids))
                    feed.add(tileOf.find(*step)->second, find->file.size);
                bytes += find->file.size;
                feed.found(++count);
            }
        };
        *result = scanner.scan(events, stop);
        return ScanUnitResult{bytes, count, std::nullopt};
    };

    ScanPlan plan;
    plan.units.push_back(std::move(unit));
    plan.adopt = [this, result] {
        found = std::move(*result);
        regroup();
        refreshVisible();
    };
    return plan;
}

std::vector<CleanupCategory> LargeFilesModel::categories() const {
    return grouped;
}

void LargeFilesModel::regroup() {
    // One category per kind, so the summary and the outcome have a line per kind. Nothing starts
    // selected: every file here is the user's own to judge.
    std::vector<CleanupCategory> result;
    for (const FileKind kind : CleanerCore::allFileKinds) {
        CleanupCategory category{raw(rawValue(kind)), QString::fromStdString(title(kind)), {}};
        for (const LargeFile& file : found)
            if (file.kind == kind) {
                CleanerCore::CleanupItem item = file.asCleanupItem();
                item.selectedByDefault = false;
                category.items.push_back(std::move(item));
            }
        if (!category.items.empty())
            result.push_back(std::move(category));
    }
    grouped = std::move(result);
}

void LargeFilesModel::dropRemoved(const std::unordered_set<URL>& removed) {
    std::erase_if(found, [&](const LargeFile& file) { return removed.contains(file.url); });
    regroup();
    refreshVisible();
}

CleanerCore::LargeFileFilter LargeFilesModel::filter() const {
    return {minimum, ageChoice, kindChoice ? std::set<FileKind>{*kindChoice} : std::set<FileKind>{}};
}

void LargeFilesModel::refreshVisible() {
    shown = CleanerCore::sorted(sortChoice, filter().apply(found, clock(), *calendar));
    rows->reload();
    emit visibleChanged();
    refreshSelectAll();
}

void LargeFilesModel::refreshSelectAll() {
    const auto on = std::ranges::count_if(shown, [this](const LargeFile& file) {
        return selection()->contains(file.url);
    });
    const auto all = static_cast<std::ptrdiff_t>(shown.size());
    shownState = {on > 0 && on == all, on > 0 && on < all};
    emit selectAllChanged();
}

void LargeFilesModel::setMinimumSize(std::int64_t bytes) {
    if (bytes == minimum)
        return;
    minimum = bytes;
    emit filterChanged();
    refreshVisible();
}

void LargeFilesModel::setAge(LargeFileAge age) {
    if (age == ageChoice)
        return;
    ageChoice = age;
    emit filterChanged();
    refreshVisible();
}

void LargeFilesModel::setKind(std::optional<FileKind> kind) {
    if (kind == kindChoice)
        return;
    kindChoice = kind;
    emit filterChanged();
    refreshVisible();
}

void LargeFilesModel::setSort(LargeFileSort sort) {
    if (sort == sortChoice)
        return;
    sortChoice = sort;
    emit sortChanged();
    refreshVisible();
}

void LargeFilesModel::setMinimumSizeRaw(const QString& text) {
    bool ok = false;
    const qint64 bytes = text.toLongLong(&ok);
    if (ok && bytes >= 0)
        setMinimumSize(bytes);
}

QString LargeFilesModel::ageRaw() const {
    return raw(rawValue(ageChoice));
}

void LargeFilesModel::setAgeRaw(const QString& text) {
    if (const auto age = CleanerCore::fromRaw<LargeFileAge>(text.toStdString()))
        setAge(*age);
}

QString LargeFilesModel::kindRaw() const {
    return kindChoice ? raw(rawValue(*kindChoice)) : QStringLiteral("all");
}

void LargeFilesModel::setKindRaw(const QString& text) {
    if (text == QLatin1String("all"))
        setKind(std::nullopt);
    else if (const auto kind = CleanerCore::fromRaw<FileKind>(text.toStdString()))
        setKind(*kind);
}

QString LargeFilesModel::sortRaw() const {
    return raw(rawValue(sortChoice));
}

void LargeFilesModel::setSortRaw(const QString& text) {
    if (const auto sort = CleanerCore::fromRaw<LargeFileSort>(text.toStdString()))
        setSort(*sort);
}

QVariantList LargeFilesModel::sizeOptions() const {
    QVariantList options;
    for (const CleanerCore::SizeOption& option : CleanerCore::SizeOption::choices()) {
        const auto bytes = static_cast<double>(option.bytes);
        options.append(QVariant::fromValue(LargeFilterOption{QString::number(option.bytes), ByteFormat::text(bytes),
                                                             ByteFormat::spoken(bytes)}));
    }
    return options;
}

QVariantList LargeFilesModel::ageOptions() const {
    QVariantList options;
    for (std::size_t index = 0; index < ageTitles.size(); ++index)
        options.append(QVariant::fromValue(LargeFilterOption{
            raw(rawValue(ageTitles[index].first)), qtTrId(ageTitles[index].second), qtTrId(ageSpoken[index])}));
    return options;
}

QVariantList LargeFilesModel::kindOptions() const {
    QVariantList options;
    options.append(QVariant::fromValue(LargeFilterOption{QStringLiteral("all"), qtTrId("large.kind.all"),
                                                         qtTrId("large.kind.all.spoken")}));
    for (const auto& [kind, key] : kindTitles)
        options.append(QVariant::fromValue(LargeFilterOption{raw(rawValue(kind)), qtTrId(key), qtTrId(key)}));
    return options;
}

void LargeFilesModel::toggleSelectAll() {
    std::vector<CleanerCore::CleanupItem> items;
    items.reserve(shown.size());
    for (const LargeFile& file : shown)
        items.push_back(file.asCleanupItem());
    selection()->setSelected(items, !shownState.isOn);
}

void LargeFilesModel::toggleRow(int row) {
    if (row < 0 || row >= visibleCount())
        return;
    const URL& url = shown[static_cast<std::size_t>(row)].url;
    selection()->setSelected(url, !selection()->contains(url));
}

void LargeFilesModel::revealRow(int row) const {
    if (row >= 0 && row < visibleCount())
        FileManager::showItem(QByteArray::fromStdString(shown[static_cast<std::size_t>(row)].url.path()));
}

QString LargeFilesModel::selectAllState() const {
    const CleanupSelection::State state = selectionState();
    return state.isOn ? QStringLiteral("on") : state.isMixed ? QStringLiteral("mixed") : QStringLiteral("off");
}

QString LargeFilesModel::fileCount(int files) {
    return (files == 1 ? qtTrId("large.fileCount.one") : qtTrId("large.fileCount.other"))
        .arg(PhaseFormat::locale().toString(files));
}

QString LargeFilesModel::foundDetail() const {
    return qtTrId("large.found.detail")
        .arg(ByteFormat::text(static_cast<double>(foundBytes())), fileCount(static_cast<int>(found.size())));
}

QString LargeFilesModel::filesText() const {
    return qtTrId("large.files").arg(fileCount(visibleCount()));
}

QString LargeFilesModel::selectedText() const {
    return qtTrId("large.selected").arg(ByteFormat::text(summary().bytesValue()));
}

QString LargeFilesModel::selectedDetail() const {
    return qtTrId("large.selected.detail").arg(fileCount(selection()->count()));
}

QString LargeFilesModel::removeText() const {
    const CleanupSummary chosen = summary();
    return chosen.count() == 0 ? qtTrId("large.remove")
                               : qtTrId("large.remove.value").arg(ByteFormat::text(chosen.bytesValue()));
}
