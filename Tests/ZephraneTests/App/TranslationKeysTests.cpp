#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

QString read(const QString& path) {
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return QString::fromUtf8(file.readAll());
}

// Keys named in the application's C++ and QML: qsTrId("k"), qtTrId("k"), QT_TRID_NOOP("k").
QSet<QString> keysUsedInCode() {
    static const QRegularExpression call(QStringLiteral(R"re((?:qsTrId|qtTrId|QT_TRID_NOOP)\(\s*"([^"]+)")re"));
    QSet<QString> keys;
    QDirIterator files(QStringLiteral(ZEPHRANE_SOURCE_DIR "/Sources/Zephrane"), {"*.cpp", "*.hpp", "*.qml"},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString text = read(files.next());
        for (auto it = call.globalMatch(text); it.hasNext();)
            keys.insert(it.next().captured(1));
    }
    return keys;
}

// Keys with a non-empty translation in one .ts file.
QSet<QString> keysTranslatedIn(const QString& file) {
    static const QRegularExpression message(
        QStringLiteral(R"re(<message id="([^"]+)">.*?<translation>([^<]+)</translation>)re"),
        QRegularExpression::DotMatchesEverythingOption);
    QSet<QString> keys;
    const QString text = read(QStringLiteral(ZEPHRANE_SOURCE_DIR "/Resources/translations/") + file);
    for (auto it = message.globalMatch(text); it.hasNext();)
        keys.insert(it.next().captured(1));
    return keys;
}

} // namespace

TEST(Translations, EveryKeyUsedInTheApplicationHasTextInBothLanguages) {
    const QSet<QString> used = keysUsedInCode();
    ASSERT_TRUE(used.contains("channel.junk.title")) << "the key scan found nothing";
    for (const QString& file : {QStringLiteral("zephrane_en.ts"), QStringLiteral("zephrane_pt_BR.ts")}) {
        const QSet<QString> known = keysTranslatedIn(file);
        for (const QString& key : used)
            EXPECT_TRUE(known.contains(key)) << key.toStdString() << " has no text in " << file.toStdString();
    }
    EXPECT_EQ(keysTranslatedIn("zephrane_en.ts"), keysTranslatedIn("zephrane_pt_BR.ts"));
}
