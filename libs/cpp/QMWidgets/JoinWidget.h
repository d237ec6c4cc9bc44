#pragma once

#include <QFrame>

namespace QMWidgets
{

/// A column of big buttons that lead to the maker's social pages, beside a text that tells what
/// for. All go through one page of the maker's site. A network whose address is empty has its
/// button hidden. Needs an App.
class JoinWidget : public QFrame
{
    Q_OBJECT

public:
    explicit JoinWidget(QWidget* parent = nullptr);

public slots:
    void slotFaceBookClicked();
    void slotTwitterClicked();
    void slotVKontakteClicked();
    void slotEmailClicked();

private:
    void openPage(const QString& social) const;

    QString m_urlTemplate;
};

} // namespace QMWidgets
