#include "Modules/Apps/AppIconProvider.hpp"

#include <QImageReader>
#include <QMutexLocker>
#include <QRunnable>
#include <QThreadPool>
#include <QUrl>

namespace {

class IconResponse : public QQuickImageResponse, public QRunnable {
public:
    IconResponse(QString path, QSize size, std::function<void(const QImage&)> remember)
        : path(std::move(path)), size(size), remember(std::move(remember)) {
        setAutoDelete(false);
    }
    explicit IconResponse(QImage ready) : image(std::move(ready)) { setAutoDelete(false); }

    QQuickTextureFactory* textureFactory() const override { return QQuickTextureFactory::textureFactoryForImage(image); }

    void run() override {
        image = AppIconProvider::load(path, size);
        if (remember)
            remember(image);
        // Told on the response's own thread, once whoever asked is surely listening.
        finishSoon();
    }
    void finishSoon() { QMetaObject::invokeMethod(this, &QQuickImageResponse::finished, Qt::QueuedConnection); }

private:
    QString path;
    QSize size;
    std::function<void(const QImage&)> remember;
    QImage image;
};

} // namespace

QImage AppIconProvider::load(const QString& path, const QSize& size) {
    QImageReader reader(path);
    if (size.isValid() && !size.isEmpty())
        reader.setScaledSize(size);
    return reader.read();
}

QQuickImageResponse* AppIconProvider::requestImageResponse(const QString& id, const QSize& requestedSize) {
    const QString path = QUrl::fromPercentEncoding(id.toLatin1());
    const QString key = path + QLatin1Char('@') + QString::number(requestedSize.width()) + QLatin1Char('x') +
                        QString::number(requestedSize.height());
    if (QImage image = cached(key); !image.isNull()) {
        auto* response = new IconResponse(std::move(image));
        response->finishSoon();
        return response;
    }
    auto* response = new IconResponse(path, requestedSize, [this, key](const QImage& image) { keep(key, image); });
    QThreadPool::globalInstance()->start(response);
    return response;
}

QImage AppIconProvider::cached(const QString& key) {
    const QMutexLocker locked(&lock);
    const QImage* image = images.object(key);
    return image ? *image : QImage();
}

void AppIconProvider::keep(const QString& key, const QImage& image) {
    if (image.isNull())
        return;
    const QMutexLocker locked(&lock);
    images.insert(key, new QImage(image));
}
