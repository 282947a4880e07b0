VERSION 5.00
Begin VorlexLib.Vorlex Clock
   Blocks          =   2
   Block.BarLeft(1)=   0
   Block.BarRight(1)=   100
   Block.BarBottom(1)=   35
   Block.HPercentage(1)=   "100"
   Block.VPercentage(1)=   "65"
   Block.Color(1)  =   &H00000000&
   Block.Text(1)   =   "!long time!"
   Block.TextColor(1)=   &H0040FFFF&
   BeginProperty Block.TextFont(1) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "MS Sans Serif"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.TextFont3D(1)=   4
   Block.BarLeft(2)=   0
   Block.BarRight(2)=   100
   Block.BarTop(2) =   35
   Block.HPercentage(2)=   "100"
   Block.VPercentage(2)=   "35"
   Block.Color(2)  =   &H00202020&
   Block.Text(2)   =   "!long date!"
   Block.TextColor(2)=   &H00C0C0C0&
   BeginProperty Block.TextFont(2) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "MS Sans Serif"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Height          =   720
   Width           =   3000
   BackColor       =   &H00000000&
   BorderStyle     =   6
   TimerTimeEnabled=   -1  'True
   RivetsStyle     =   1
End
