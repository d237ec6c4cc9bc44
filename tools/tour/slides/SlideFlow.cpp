#include "flow/BaseNode.h"
#include "flow/NodesOptionsPanel.h"
#include "slides/SlideScenes.h"
#include "Stage.h"

#include <QDomDocument>

void openWithFlow(SlideSet& set, const QVector<SlideStep>& steps)
{
    Stage& stage = set.stage;
    stage.setPhotos(set.photos);
    stage.dropPhotos();
    auto* const panel = stage.find<NodesOptionsPanel>();
    for (const SlideStep& step : steps) {
        stage.addOperation(QLatin1String(step.operation));
        QDomDocument parameters;
        stage.check(parameters.setContent(
                        QStringLiteral("<Parameters>%1</Parameters>").arg(step.parameters)),
                    QStringLiteral("the parameters of a slide can be read"));
        panel->flow().last()->loadParameters(parameters.documentElement());
    }
    if (!steps.isEmpty()) {
        panel->slotParametersChanged();
    }
    stage.restPointer();
}

SlideStep strongerColours()
{
    return {"Brightness, Contrast, Saturation",
            QStringLiteral("<Brightness>8</Brightness><Contrast>18</Contrast>"
                           "<Saturation>60</Saturation>")};
}

SlideStep watermark(const SlideSet& set)
{
    return {"Watermark",
            QStringLiteral("<Mode>0</Mode><Text>%1</Text><Size>55</Size>"
                           "<Position>BottomRight</Position><XOffset>-4</XOffset>"
                           "<YOffset>5</YOffset><Transparency>10</Transparency>"
                           "<Color>#ffffff</Color><BackgroundEnabled>no</BackgroundEnabled>"
                           "<Font>DejaVu Sans</Font><Bold>yes</Bold>")
                .arg(set.texts.watermark)};
}
