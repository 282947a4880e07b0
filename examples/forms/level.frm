VERSION 5.00
Begin VorlexLib.Vorlex Level
   Blocks          =   1
   Block.BarLeft(1)=   0
   Block.BarRight(1)=   70
   Block.BarTop(1) =   70
   Block.BarBottom(1)=   30
   Block.BorderStyle(1)=   1
   Block.HPercentage(1)=   "70"
   Block.VPercentage(1)=   "40"
   Block.GradientStyle(1)=   4
   Block.GradientColor(1)=   &H000000FF&
   Block.GradientColorEnd(1)=   &H000080FF&
   Block.Text(1)   =   "!h%!"
   Block.TextColor(1)=   &H00FFFFFF&
   BeginProperty Block.TextFont(1) {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "Tahoma"
      Size            =   8.25
      Charset         =   0
      Weight          =   700
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Block.TextAngle(1)=   90
   Height          =   3300
   Width           =   960
   BackColor       =   &H00E0E0E0&
   BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}
      Name            =   "Tahoma"
      Size            =   9.75
      Charset         =   0
      Weight          =   700
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   BorderStyle     =   2
   BorderWidth     =   2
   Orientation     =   3
   RivetsStyle     =   3
End
