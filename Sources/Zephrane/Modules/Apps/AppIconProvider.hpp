#pragma once

#include <QCache>
#include <QImage>
#include <QMutex>
#include <QQuickAsyncImageProvider>
#include <QString>

// The apps' icons, read and scaled on the thread pool (never the interface thread) and kept, so a
// list scrolled back and forth reads each file once. The id is the icon file's path, percent-encoded.
class AppIconProvider : public QQuickAsyncImageProvider {
public:
    static constexpr const char* name = "appicon";

    QQuickImageResponse* requestImageResponse(const QString& id, const QSize& requestedSize) override;

    // An icon file at `size` (its own size when empty); a null image when it can't be read.
    static QImage load(const QString& path, const QSize& size);

private:
    QImage cached(const QString& key);
    void keep(const QString& key, const QImage& image);

    QMutex lock;
    QCache<QString, QImage> images{256};
};
