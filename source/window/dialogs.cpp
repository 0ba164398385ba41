#include "window/dialogs.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QUrl>

namespace Window {

namespace {

// A file name may look like rich text.
void show(QMessageBox::Icon icon, QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox box(icon, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace

QString NativeDialogs::fileToOpen(QWidget *parent, const FileQuestion &question)
{
    return QFileDialog::getOpenFileName(parent, question.title, question.folder, question.filter);
}

// A name without a suffix gets that of the filter before the dialog asks whether to replace the file.
QString NativeDialogs::fileToSave(QWidget *parent, const FileQuestion &question)
{
    QFileDialog dialog(parent, question.title, question.folder, question.filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(question.filter.section(u'.', -1));
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    return dialog.selectedFiles().value(0);
}

void NativeDialogs::warn(QWidget *parent, const QString &title, const QString &text)
{
    show(QMessageBox::Warning, parent, title, text);
}

void NativeDialogs::inform(QWidget *parent, const QString &title, const QString &text)
{
    show(QMessageBox::Information, parent, title, text);
}

UnsavedChoice NativeDialogs::askAboutUnsaved(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox box(QMessageBox::Warning, title, text,
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return UnsavedChoice::Save;
    case QMessageBox::Discard:
        return UnsavedChoice::Discard;
    default:
        return UnsavedChoice::Cancel;
    }
}

bool NativeDialogs::confirm(QWidget *parent, const QString &title, const QString &question)
{
    QMessageBox box(QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

QString droppedFile(const QMimeData *dropped)
{
    const QList<QUrl> urls = dropped ? dropped->urls() : QList<QUrl>();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace Window
