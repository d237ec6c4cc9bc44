#include "support/ModalDialog.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QMWidgets/App.h>
#include <QMWidgets/MMessageBox.h>
#include <QScreen>
#include <QStyle>

using QMWidgets::App;
using QMWidgets::MMessageBox;

namespace
{

const QString kTitle = QStringLiteral("Title");
const QString kText = QStringLiteral("Something that the user should know");

/// The texts of the buttons, from left to right or from the top down.
QStringList buttonTexts(const MMessageBox& box)
{
    const bool column = App::isSmallDesktop(QGuiApplication::primaryScreen()->virtualSize());
    QMap<int, QString> byPlace;
    for (const QPushButton* button : box.findChildren<QPushButton*>()) {
        byPlace.insert(column ? button->y() : button->x(), button->text());
    }
    return byPlace.values();
}

} // namespace

class tst_MMessageBox : public QObject
{
    Q_OBJECT

private slots:
    /// On a small screen all of them stand at one x, so the order holds only in a column.
    void buttonsStandInTheirOwnOrder()
    {
        MMessageBox box(4, kTitle, kText,
                        QMessageBox::NoAll | QMessageBox::YesAll | QMessageBox::Ignore |
                            QMessageBox::Retry | QMessageBox::Abort | QMessageBox::Yes |
                            QMessageBox::No | QMessageBox::Cancel | QMessageBox::Ok |
                            QMessageBox::Help,
                        nullptr);
        box.show();
        QCOMPARE(buttonTexts(box),
                 QStringList({QStringLiteral("Ok"), QStringLiteral("Cancel"), QStringLiteral("No"),
                              QStringLiteral("Yes"), QStringLiteral("Abort"),
                              QStringLiteral("Retry"), QStringLiteral("Ignore"),
                              QStringLiteral("YesAll"), QStringLiteral("NoAll")}));
        const QMap<QString, int> values = {
            {QStringLiteral("Ok"), 0x400},        {QStringLiteral("Cancel"), 0x400000},
            {QStringLiteral("No"), 0x10000},      {QStringLiteral("Yes"), 0x4000},
            {QStringLiteral("Abort"), 0x40000},   {QStringLiteral("Retry"), 0x80000},
            {QStringLiteral("Ignore"), 0x100000}, {QStringLiteral("YesAll"), 0x8000},
            {QStringLiteral("NoAll"), 0x20000}};
        for (QPushButton* button : box.findChildren<QPushButton*>()) {
            button->click();
            QCOMPARE(box.result(), values.value(button->text()));
        }
    }

    void asksModally_data()
    {
        QTest::addColumn<int>("icon");
        QTest::newRow("information") << int(QStyle::SP_MessageBoxInformation);
        QTest::newRow("warning") << int(QStyle::SP_MessageBoxWarning);
        QTest::newRow("critical") << int(QStyle::SP_MessageBoxCritical);
        QTest::newRow("question") << int(QStyle::SP_MessageBoxQuestion);
    }

    void asksModally()
    {
        QFETCH(int, icon);
        using Ask =
            int (*)(QWidget*, const QString&, const QString&, QMessageBox::StandardButtons, int);
        const QMap<QByteArray, Ask> operations = {{"information", &MMessageBox::information},
                                                  {"warning", &MMessageBox::warning},
                                                  {"critical", &MMessageBox::critical},
                                                  {"question", &MMessageBox::question}};
        const Ask ask = operations.value(QTest::currentDataTag());
        QWidget parent;
        QImage shown;
        const auto call = [&] {
            return ask(&parent, kTitle, kText, QMessageBox::Yes | QMessageBox::No, 0);
        };
        QCOMPARE(withModalDialog(call,
                                 [&shown](QDialog* box) {
                                     QCOMPARE(box->windowTitle(), kTitle);
                                     QCOMPARE(box->objectName(), QStringLiteral("MessageBox"));
                                     for (const QLabel* label : box->findChildren<QLabel*>()) {
                                         if (label->text().isEmpty()) {
                                             shown = label->pixmap(Qt::ReturnByValue).toImage();
                                         }
                                     }
                                     buttonOf(box, QStringLiteral("Yes"))->click();
                                 }),
                 0x4000);
        QVERIFY(!shown.isNull());
        QCOMPARE(shown,
                 QApplication::style()->standardPixmap(QStyle::StandardPixmap(icon)).toImage());
        // The box stays with its parent.
        QCOMPARE(parent.findChildren<MMessageBox*>().count(), 1);
        QCOMPARE(withModalDialog(call,
                                 [](QDialog* box) {
                                     QVERIFY(QTest::qWaitForWindowActive(box));
                                     QTest::keyClick(box, Qt::Key_Return);
                                 }),
                 0x10000);
    }

    void anyOtherEndGivesZero()
    {
        QPointer<QDialog> last;
        const auto ask = [] {
            return MMessageBox::warning(nullptr, kTitle, kText, QMessageBox::NoButton);
        };
        QCOMPARE(withModalDialog(ask,
                                 [&last](QDialog* box) {
                                     last = box;
                                     QVERIFY(box->findChildren<QPushButton*>().isEmpty());
                                     QTest::keyClick(box, Qt::Key_Return);
                                     QVERIFY(box->isVisible());
                                     QTest::keyClick(box, Qt::Key_Escape);
                                 }),
                 0);
        QVERIFY(!last);
        QCOMPARE(withModalDialog(ask, [](QDialog* box) { box->close(); }), 0);
    }
};

TESSARIN_TEST(tst_MMessageBox);
#include "tst_MMessageBox.moc"
