#include "Modules/Apps/AppIconProvider.hpp"
#include "TempTree.hpp"

#include <QImage>
#include <QQuickTextureFactory>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace {

// Asks the provider as the engine does and waits for the answer, which never comes synchronously.
QImage request(AppIconProvider& provider, const QString& path, QSize size) {
    std::unique_ptr<QQuickImageResponse> response(
        provider.requestImageResponse(QString::fromLatin1(QUrl::toPercentEncoding(path)), size));
    QSignalSpy finished(response.get(), &QQuickImageResponse::finished);
    if (finished.isEmpty() && !finished.wait(5000))
        return {};
    std::unique_ptr<QQuickTextureFactory> texture(response->textureFactory());
    return texture ? texture->image() : QImage();
}

} // namespace

TEST(AppIconProvider, ReadsOffTheInterfaceThreadScalesAndKeepsWhatItRead) {
    TestSupport::TempTree tree;
    const QString path = QString::fromStdString(tree.path("icons/my app.png").string());
    std::filesystem::create_directories(tree.path("icons"));
    QImage source(256, 256, QImage::Format_ARGB32);
    source.fill(Qt::red);
    ASSERT_TRUE(source.save(path));

    AppIconProvider provider;
    const QImage first = request(provider, path, QSize(64, 64));
    ASSERT_FALSE(first.isNull());
    EXPECT_EQ(first.size(), QSize(64, 64));

    // The file is gone; the icon shown before still comes, from the cache.
    std::filesystem::remove(path.toStdString());
    const QImage again = request(provider, path, QSize(64, 64));
    EXPECT_EQ(again.size(), QSize(64, 64));
    EXPECT_TRUE(request(provider, path, QSize(32, 32)).isNull()) << "another size is another read";
}
