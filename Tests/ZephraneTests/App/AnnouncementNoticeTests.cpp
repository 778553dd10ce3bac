#include "App/Announcer.hpp"
#include "App/AppModel.hpp"
#include "App/MainWindow.hpp"
#include "Support/QmlTestSupport.hpp"

#include <QAccessible>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <gtest/gtest.h>

// Tests/Accessibility hears the notice on the real bus; this keeps what a screen reader relies on
// checked where no bus is installed: the bridge says "showing" when the item turns visible, and
// the reader then reads its name.
TEST(AnnouncementNotice, EachAnnouncementShowsTheNotificationAnewAlreadyNamed) {
    QmlTestSupport::WarningCollector warnings;
    AppModel model;
    QQmlApplicationEngine engine;
    QQuickWindow* window = MainWindow::load(engine, model);
    ASSERT_NE(window, nullptr);
    auto* notice = window->findChild<QQuickItem*>(QStringLiteral("announcementNotice"));
    ASSERT_NE(notice, nullptr);
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(notice);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::Notification);

    QStringList shownWith;
    QObject::connect(notice, &QQuickItem::visibleChanged, notice, [&] {
        if (notice->isVisible())
            shownWith.append(accessible->text(QAccessible::Name));
    });
    Announcer::announce(QStringLiteral("Scanning"));
    Announcer::announce(QStringLiteral("Scanning"));
    Announcer::announce(QStringLiteral("Scan finished, 4 KB found"));

    EXPECT_EQ(shownWith, QStringList({QStringLiteral("Scanning"), QStringLiteral("Scanning"),
                                      QStringLiteral("Scan finished, 4 KB found")}));
    warnings.expectNone();
}
