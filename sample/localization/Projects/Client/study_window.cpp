#include <QMainWindow>

class StudyWindow : public QMainWindow
{
    Q_OBJECT

public:
    QString title(const QString &study) const { return tr("Study %1").arg(study); }
    QString state(bool running) const { return running ? tr("Solving") : tr("Ready"); }
};
