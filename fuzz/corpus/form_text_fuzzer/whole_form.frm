VERSION 5.00
Begin VB.Form Form1
   Caption         =   "Form1"
   Begin VB.CommandButton Command1
      BeginProperty Font
         Name            =   "Tahoma"
      EndProperty
   End
   Begin VorlexLib.Vorlex Vorlex1
      Blocks          =   2
      Block.Key(1)    =   "a ""b"""
      Block.Color(2)  =   &H000000FF&
      Block.Visible(2)=   0   'False
      CaptionOffset   =   &HFFFF
      Height          =   1E+3
      Caption         =   $"Form1.frx":0000
      BeginProperty Block.TextFont(1) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name            =   "Arial"
         Size            =   9.75
         Weight          =   700
         Italic          =   -1  'True
      EndProperty
   End
End
Attribute VB_Name = "Form1"
