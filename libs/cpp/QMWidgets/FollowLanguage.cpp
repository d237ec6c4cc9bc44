#include "FollowLanguage.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace QMWidgets
{

namespace
{

/// A widget hands the change of language on to all its children, this one among them.
class LanguageFollower : public QObject
{
public:
    LanguageFollower(QWidget* widget, std::function<void()> setTexts)
        : QObject(widget),
          m_setTexts(std::move(setTexts))
    {
    }

    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange) {
            m_setTexts();
            return true;
        }
        return QObject::event(event);
    }

private:
    std::function<void()> m_setTexts;
};

} // namespace

void followLanguage(QWidget* widget, std::function<void()> setTexts)
{
    setTexts();
    new LanguageFollower(widget, std::move(setTexts));
}

} // namespace QMWidgets
