// The eight empty hooks of the window, kept as they are.

#include <QDebug>

#include "mainwindow.h"

void MainWindow::onBrightnessAddShortcut()
{
    qDebug() << "MainWindow::onBrightnessAddShortcut";
}

void MainWindow::onBrightnessSubShortcut()
{
    qDebug() << "MainWindow::onBrightnessSubShortcut";
}

void MainWindow::onSoundAddShortcut()
{
    qDebug() << "MainWindow::onSoundAddShortcut";
}

void MainWindow::onSoundSubShortcut()
{
    qDebug() << "MainWindow::onSoundSubShortcut";
}

void MainWindow::onEyeModeShortcut()
{
    qDebug() << "MainWindow::onEyeModeShortcut";
}

void MainWindow::onSplitModeShortcut()
{
    qDebug() << "MainWindow::onSplitModeShortcut";
}

void MainWindow::onAudioRhyShortcut()
{
    qDebug() << "MainWindow::onAudioRhyShortcut";
}

void MainWindow::onScreenRhyShortcut()
{
    qDebug() << "MainWindow::onScreenRhyShortcut";
}
