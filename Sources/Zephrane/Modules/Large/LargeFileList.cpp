#include "Modules/Large/LargeFileList.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Display/RelativeDate.hpp"
#include "Modules/Large/LargeFilesModel.hpp"
#include "Painel/ByteFormat.hpp"

#include <algorithm>

LargeFileList::LargeFileList(const LargeFilesModel& model, QObject* parent)
    : QAbstractListModel(parent), large(model) {}

int LargeFileList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count;
}

QHash<int, QByteArray> LargeFileList::roleNames() const {
    return {{PathRole, "path"},         {NameRole, "name"},   {FolderRole, "folder"},
            {KindTitleRole, "kindTitle"}, {LastUsedTextRole, "lastUsedText"}, {BytesRole, "bytes"},
            {SizeTextRole, "sizeText"}, {FractionRole, "fraction"}, {SelectedRole, "selected"}};
}

void LargeFileList::reload() {
    const int before = count;
    beginResetModel();
    const auto& files = large.visibleFiles();
    count = static_cast<int>(files.size());
    largest = 0;
    for (const auto& file : files)
        largest = std::max(largest, file.size);
    reference = large.now();
    texts.assign(files.size(), Texts{});
    endResetModel();
    if (count != before)
        emit countChanged();
}

void LargeFileList::refreshSelection() {
    if (count > 0)
        emit dataChanged(index(0), index(count - 1), {SelectedRole});
}

QString LargeFileList::shortFolder(const QString& folder, const QString& home) {
    if (folder == home)
        return QStringLiteral("~");
    if (!home.isEmpty() && folder.startsWith(home + '/'))
        return "~" + folder.mid(home.size());
    return folder;
}

const LargeFileList::Texts& LargeFileList::textsOf(int row) const {
    Texts& made = texts[static_cast<std::size_t>(row)];
    if (made.made)
        return made;
    const auto& file = large.visibleFiles()[static_cast<std::size_t>(row)];
    const std::string language = CleanerCore::CoreL10n::currentLanguage();
    made.folder = shortFolder(QString::fromStdString(file.folderPath()), QString::fromStdString(large.home().path()));
    made.kind = QString::fromStdString(file.kindTitle(language));
    made.lastUsed = file.lastUsed ? qtTrId("large.row.lastUsed")
                                        .arg(QString::fromStdString(
                                            CleanerCore::RelativeDate::string(*file.lastUsed, reference, language)))
                                  : qtTrId("large.row.noDate");
    made.size = ByteFormat::text(static_cast<double>(file.size));
    made.made = true;
    return made;
}

QVariant LargeFileList::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const auto& file = large.visibleFiles()[static_cast<std::size_t>(index.row())];
    switch (role) {
    case PathRole:
        return QString::fromStdString(file.url.path());
    case NameRole:
    case Qt::DisplayRole:
        return QString::fromStdString(file.name());
    case FolderRole:
        return textsOf(index.row()).folder;
    case KindTitleRole:
        return textsOf(index.row()).kind;
    case LastUsedTextRole:
        return textsOf(index.row()).lastUsed;
    case BytesRole:
        return static_cast<double>(file.size);
    case SizeTextRole:
        return textsOf(index.row()).size;
    case FractionRole:
        return largest > 0 ? static_cast<double>(file.size) / static_cast<double>(largest) : 0.0;
    case SelectedRole:
        return large.selection()->contains(file.url);
    default:
        return {};
    }
}
