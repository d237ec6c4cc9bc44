#include "flow/FavoritesDeleteDlg.h"
#include "support/TestMain.h"

#include <QListWidget>
#include <QPushButton>

class TestFavoritesDeleteDlg : public QObject
{
    Q_OBJECT

private slots:
    void choosesAmongTheFlowsInReverse()
    {
        FavoritesDeleteDlg dialog(nullptr);
        dialog.show();
        QCOMPARE(dialog.selectedFlow(), QString());
        dialog.hide();
        dialog.addFlow(QStringLiteral("a.flow"));
        dialog.addFlow(QStringLiteral("b.flow"));
        dialog.show();
        QCOMPARE(dialog.selectedFlow(), QStringLiteral("b.flow"));
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        auto* focused = qobject_cast<QPushButton*>(dialog.focusWidget());
        QVERIFY(focused && focused->objectName() == QLatin1String("PushButton"));
        QTest::keyClick(dialog.findChild<QListWidget*>(), Qt::Key_Down);
        QCOMPARE(dialog.selectedFlow(), QStringLiteral("a.flow"));
        dialog.findChild<QPushButton*>(QStringLiteral("DeleteButton"))->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        dialog.clearFlows();
        QCOMPARE(dialog.selectedFlow(), QString());
    }
};

TESSARIN_TEST(TestFavoritesDeleteDlg);
#include "tst_FavoritesDeleteDlg.moc"
